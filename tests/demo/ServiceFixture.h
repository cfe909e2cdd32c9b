#pragma once

#include "platform/KeyPair.h"
#include "sample/SampleService.h"
#include "testing/ManualClock.h"

#include <chrono>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QNetworkAccessManager>

#include <gtest/gtest.h>

namespace vantrell::testing {

using Query = std::vector<std::pair<std::string, std::string>>;

/// 22 November 2026 at 6 am in California.
inline constexpr Instant morning = sample::dayOf(2026, 11, 22) + std::chrono::hours{14};

/// What the service lets in; the key is made once a process.
[[nodiscard]] const KeyPair& sellersKey();
[[nodiscard]] const sample::SampleAccess& access();

[[nodiscard]] std::string base64url(std::string_view bytes);

inline constexpr std::string_view goodHeader = R"({"alg":"ES256","kid":"7QK2MZ8T5W","typ":"JWT"})";

/// The claims that a good token has, or all but one. `audience` is the member's JSON.
struct Claims {
    Instant issued = morning;
    std::chrono::seconds life{1200};
    std::string issuer = access().issuerID;
    std::string audience = R"("appstoreconnect-v1")";

    [[nodiscard]] std::string json() const;
};

/// The value of an Authorization header with a signed token.
[[nodiscard]] std::string bearer(std::string_view header, std::string_view claims,
                                 std::string_view privatePEM = sellersKey().privatePEM);

/// An answer as it came over the network.
struct Reply {
    int status = 0;
    std::string body;
};

[[nodiscard]] Query salesQuery(const std::string& frequency, const std::string& date,
                               const std::string& version);
[[nodiscard]] Query financeQuery(const std::string& period);

/// A sample service and a client of it, with a clock that stands at `morning`.
class ServiceFixture : public ::testing::Test {
  protected:
    Reply get(const std::string& path, const Query& query = {}, const std::string& authorization = {});
    /// With a token that is good now.
    Reply sales(const Query& query) { return get("/v1/salesReports", query, freshToken()); }
    Reply finance(const Query& query) { return get("/v1/financeReports", query, freshToken()); }
    [[nodiscard]] std::string freshToken() const { return bearer(goodHeader, Claims{clock.now()}.json()); }

    ManualClock clock{morning};
    sample::SampleAccount account;
    sample::SampleService service{account, access(), clock};
    QNetworkAccessManager network;
};

}  // namespace vantrell::testing
