#include "ServiceFixture.h"

namespace vantrell::testing {
namespace {

using namespace std::chrono_literals;
using sample::TokenFault;

using SampleServiceToken = ServiceFixture;

std::string withClaims(const Claims& claims) {
    return bearer(goodHeader, claims.json());
}

std::string withHeader(std::string_view header) {
    return bearer(header, Claims{}.json());
}

TEST_F(SampleServiceToken, LetsTheHolderOfTheKeyIn) {
    const struct {
        const char* name;
        std::string authorization;
    } cases[] = {
        {"fresh", withClaims({})},
        {"nineteen minutes old", withClaims({.issued = morning - 19min})},
        {"from a clock that is a little ahead", withClaims({.issued = morning + 30s})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(get("/v1/salesReports", salesQuery("DAILY", "2026-11-21", "1_1"), c.authorization).status,
                  200);
        EXPECT_EQ(get("/v1/financeReports", financeQuery("2026-12"), c.authorization).status, 200);
    }
}

TEST_F(SampleServiceToken, IsRefusedForEveryFaultWithoutSayingWhich) {
    const auto good = withClaims({});
    const auto other = withClaims({.life = 60s});
    const auto signatureAt = good.rfind('.') + 1;
    const auto noTimes = R"({"iss":")" + access().issuerID + R"(","aud":"appstoreconnect-v1"})";
    const struct {
        const char* name;
        std::string authorization;
        TokenFault fault;
    } cases[] = {
        {"unsigned", withHeader(R"({"alg":"none","kid":"7QK2MZ8T5W","typ":"JWT"})"), TokenFault::algorithm},
        {"other key ID", withHeader(R"({"alg":"ES256","kid":"AAAAAAAAAA","typ":"JWT"})"), TokenFault::keyID},
        {"other issuer", withClaims({.issuer = "somebody"}), TokenFault::issuer},
        {"other audience", withClaims({.audience = R"("appstoreconnect-v2")"}), TokenFault::audience},
        {"a second too long", withClaims({.life = 1201s}), TokenFault::lifetime},
        {"just over", withClaims({.issued = morning - 20min}), TokenFault::expired},
        {"from the far future", withClaims({.issued = morning + 1h}), TokenFault::fromTheFuture},
        {"nothing", "", TokenFault::missing},
        {"other scheme", "Basic " + good.substr(7), TokenFault::missing},
        {"two parts", good.substr(0, signatureAt - 1), TokenFault::malformed},
        {"padded signature", good + "==", TokenFault::malformed},
        {"signature of another token", other.substr(0, other.rfind('.') + 1) + good.substr(signatureAt),
         TokenFault::signature},
        {"signature with another key", bearer(goodHeader, Claims{}.json(), generateKeyPair().privatePEM),
         TokenFault::signature},
        {"short signature", good.substr(0, signatureAt) + base64url(std::string(63, 'x')),
         TokenFault::signature},
        {"no times", bearer(goodHeader, noTimes), TokenFault::malformed},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto reply = get("/v1/salesReports", salesQuery("DAILY", "2026-11-21", "1_1"), c.authorization);
        EXPECT_EQ(reply.status, 401);
        EXPECT_NE(reply.body.find("NOT_AUTHORIZED"), std::string::npos);
        EXPECT_EQ(service.log().requests().back().tokenFault, c.fault);
    }
}

}  // namespace
}  // namespace vantrell::testing
