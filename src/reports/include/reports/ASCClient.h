#pragma once

#include "base/Clock.h"
#include "base/Instant.h"
#include "data/APICredentials.h"
#include "data/ReportFrequency.h"
#include "net/HttpClient.h"
#include "net/RequestUrl.h"
#include "reports/ReportResponse.h"
#include "reports/ServiceNotes.h"

#include <chrono>
#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Asks the report service for one report at a time. It has no notion of a run, of stored data or of pacing,
/// and retries nothing but a refused report version.
///
/// A fetch uses its client until it has returned: the owner cancels what is under way and lets it end before
/// the client goes. What is asked for is read from the credentials as each request goes out.
class ASCClient {
  public:
    /// `origin` is a scheme and a host with no path, and the only place that a token is sent to. The others
    /// must outlive this.
    ASCClient(HttpClient& http, const Clock& clock, std::string origin);
    ASCClient(const ASCClient&) = delete;
    ASCClient& operator=(const ASCClient&) = delete;

    /// Four empty texts at first.
    [[nodiscard]] const APICredentials& credentials() const { return credentials_; }
    /// Also forgets the cached token, so that none signed with another key is ever sent.
    void setCredentials(APICredentials credentials);

    /// Forgets which versions the service wants and what it said beside its reports.
    void beginRun();
    /// Of the last answer since then.
    [[nodiscard]] const ServiceNotes& notes() const { return notes_; }

    /// `reportDate` is a day key, month key or year label. Without a `version` the usual one is asked for,
    /// and if that is refused, once more the one that the service names, which is the usual one from then on.
    /// Never throws.
    [[nodiscard]] QCoro::Task<ReportResponse> fetchSales(ReportFrequency frequency, std::string reportDate,
                                                         std::optional<std::string> version,
                                                         std::stop_token cancel);
    /// The consolidated report of all regions for a fiscal period such as "2026-11". Never throws.
    [[nodiscard]] QCoro::Task<ReportResponse> fetchFinance(std::string fiscalPeriod, std::stop_token cancel);

    /// `text` without what the credentials and the cached token give away.
    [[nodiscard]] std::string redacted(std::string text) const;

    /// The cached token while it has more than a minute to live, else a new one. Throws what makeAPIToken
    /// does, and keeps the cache then. A token is used for at most 19 minutes by the wall clock and by the
    /// monotonic clock, so that setting the wall clock back doesn't prolong it.
    [[nodiscard]] std::string currentToken();

  private:
    struct CachedToken {
        std::string value;
        Instant expires;
        std::chrono::microseconds signedAt;  ///< by the monotonic clock
    };

    /// Absent while the clocks agree.
    [[nodiscard]] std::optional<std::chrono::minutes> clockAhead() const;
    [[nodiscard]] bool isFresh(const CachedToken& token) const;
    [[nodiscard]] std::vector<QueryItem> salesQuery(ReportFrequency frequency, const std::string& reportDate,
                                                    const std::string& version) const;
    [[nodiscard]] QCoro::Task<ReportResponse> send(std::string path, std::vector<QueryItem> queryItems,
                                                   std::stop_token cancel);

    HttpClient& http_;
    const Clock& clock_;
    std::string origin_;
    APICredentials credentials_;
    std::optional<CachedToken> cachedToken_;
    std::map<ReportFrequency, std::string> versions_;  ///< where not the usual ones
    ServiceNotes notes_;
};

}  // namespace vantrell
