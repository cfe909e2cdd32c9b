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
        {"short-lived", withClaims({.life = 60s})},
        {"from a clock that is a little ahead", withClaims({.issued = morning + 30s})},
        {"members in another order", withHeader(R"({"typ":"JWT","kid":"7QK2MZ8T5W","alg":"ES256"})")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(get("/v1/salesReports", salesQuery("DAILY", "2026-11-21", "1_1"), c.authorization).status,
                  200);
        EXPECT_EQ(get("/v1/financeReports", financeQuery("2026-12"), c.authorization).status, 200);
    }
}

TEST_F(SampleServiceToken, IsRefusedIfItSaysSomethingElse) {
    const auto noTimes = R"({"iss":")" + access().issuerID + R"(","aud":"appstoreconnect-v1"})";
    const struct {
        const char* name;
        std::string authorization;
        TokenFault fault;
    } cases[] = {
        {"no algorithm", withHeader(R"({"kid":"7QK2MZ8T5W","typ":"JWT"})"), TokenFault::algorithm},
        {"unsigned", withHeader(R"({"alg":"none","kid":"7QK2MZ8T5W","typ":"JWT"})"), TokenFault::algorithm},
        {"shared secret", withHeader(R"({"alg":"HS256","kid":"7QK2MZ8T5W","typ":"JWT"})"),
         TokenFault::algorithm},
        {"other type", withHeader(R"({"alg":"ES256","kid":"7QK2MZ8T5W","typ":"JOSE"})"),
         TokenFault::algorithm},
        {"other key ID", withHeader(R"({"alg":"ES256","kid":"AAAAAAAAAA","typ":"JWT"})"), TokenFault::keyID},
        {"no key ID", withHeader(R"({"alg":"ES256","typ":"JWT"})"), TokenFault::keyID},
        {"other issuer", withClaims({.issuer = "somebody"}), TokenFault::issuer},
        {"other audience", withClaims({.audience = R"("appstoreconnect-v2")"}), TokenFault::audience},
        {"several audiences", withClaims({.audience = R"(["appstoreconnect-v1"])"}), TokenFault::audience},
        {"a second too long", withClaims({.life = 1201s}), TokenFault::lifetime},
        {"ends when it begins", withClaims({.life = 0s}), TokenFault::lifetime},
        {"just over", withClaims({.issued = morning - 20min}), TokenFault::expired},
        {"long over", withClaims({.issued = morning - 24h}), TokenFault::expired},
        {"from the far future", withClaims({.issued = morning + 1h}), TokenFault::fromTheFuture},
        {"no times", bearer(goodHeader, noTimes), TokenFault::malformed},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto reply = get("/v1/salesReports", salesQuery("DAILY", "2026-11-21", "1_1"), c.authorization);
        EXPECT_EQ(reply.status, 401);
        EXPECT_EQ(reply.error("code"), "NOT_AUTHORIZED");
        EXPECT_EQ(service.log().requests().back().tokenFault, c.fault);
    }
}

TEST_F(SampleServiceToken, IsRefusedIfItIsNoneOrNotGenuine) {
    const auto good = withClaims({});
    const auto unsignedPart = good.substr(0, good.rfind('.') + 1);
    const auto signature = good.substr(good.rfind('.') + 1);
    const auto other = withClaims({.life = 60s});
    const struct {
        const char* name;
        std::string authorization;
        TokenFault fault;
    } cases[] = {
        {"nothing", "", TokenFault::missing},
        {"other scheme", "Basic " + good.substr(7), TokenFault::missing},
        {"no scheme", good.substr(7), TokenFault::missing},
        {"no token", "Bearer ", TokenFault::missing},
        {"one part", "Bearer nonsense", TokenFault::malformed},
        {"two parts", unsignedPart.substr(0, unsignedPart.size() - 1), TokenFault::malformed},
        {"four parts", good + ".AAAA", TokenFault::malformed},
        {"empty signature", unsignedPart, TokenFault::malformed},
        {"padded signature", good + "==", TokenFault::malformed},
        {"ordinary base64", unsignedPart + "ab+/", TokenFault::malformed},
        {"parts that are no JSON", bearer("alg", "iss"), TokenFault::malformed},
        {"parts that are no objects", bearer("[1]", "[2]"), TokenFault::malformed},
        {"signature of another token", other.substr(0, other.rfind('.') + 1) + signature,
         TokenFault::signature},
        {"signature with another key", bearer(goodHeader, Claims{}.json(), generateKeyPair().privatePEM),
         TokenFault::signature},
        {"short signature", unsignedPart + base64url(std::string(63, 'x')), TokenFault::signature},
        {"zero signature", unsignedPart + base64url(std::string(64, '\0')), TokenFault::signature},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(get("/v1/financeReports", financeQuery("2026-12"), c.authorization).status, 401);
        EXPECT_EQ(service.log().requests().back().tokenFault, c.fault);
    }
}

}  // namespace
}  // namespace vantrell::testing
