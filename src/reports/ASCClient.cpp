#include "reports/ASCClient.h"

#include "Redaction.h"
#include "reports/APIToken.h"
#include "reports/ClassifyResponse.h"

#include <exception>
#include <utility>
#include <variant>

namespace vantrell {
namespace {

constexpr std::chrono::seconds tokenReserve{60};
constexpr std::chrono::minutes clockTolerance{2};

std::string defaultVersion(ReportFrequency frequency) {
    return frequency == ReportFrequency::daily ? "1_1" : "1_0";
}

HttpRequest reportRequest(std::string url, const std::string& token) {
    HttpRequest request;
    request.url = std::move(url);
    request.headers = {{"Accept", "application/a-gzip, application/json"},
                       {"Authorization", "Bearer " + token}};
    request.redirects = Redirects::refuse;
    request.idleTimeout = std::chrono::seconds(90);
    request.totalTimeout = std::chrono::minutes(15);
    request.maxBodyBytes = std::size_t{64} << 20U;
    request.maxErrorBodyBytes = std::size_t{1} << 20U;
    request.wantedHeaders = {rateLimitHeader, dateHeader};
    return request;
}

/// Once more, since the words of an answer may have been escaped in it.
ReportResponse withoutSecrets(ReportResponse answer, const Redaction& secrets) {
    std::visit(
        [&secrets](auto& outcome) {
            if constexpr (requires { outcome.message; }) {
                outcome.message = secrets.of(std::move(outcome.message));
            } else if constexpr (requires { outcome.detail; }) {
                outcome.detail = secrets.of(std::move(outcome.detail));
            }
        },
        answer);
    return answer;
}

}  // namespace

ASCClient::ASCClient(HttpClient& http, const Clock& clock, std::string origin)
    : http_(http), clock_(clock), origin_(std::move(origin)) {}

void ASCClient::beginRun() {
    versions_.clear();
    notes_ = {};
}

void ASCClient::setCredentials(APICredentials credentials) {
    replace(credentials_, std::move(credentials));
    cachedToken_.reset();
}

QCoro::Task<ReportResponse> ASCClient::fetchSales(ReportFrequency frequency, std::string reportDate,
                                                  std::optional<std::string> version,
                                                  std::stop_token cancel) {
    const std::string path = "/v1/salesReports";
    const auto learned = versions_.find(frequency);
    const std::string usual = learned != versions_.end() ? learned->second : defaultVersion(frequency);
    const std::string asked = version.value_or(usual);
    ReportResponse first = co_await send(path, salesQuery(frequency, reportDate, asked), cancel);
    const auto* const refused = std::get_if<response::WrongVersion>(&first);
    if (refused == nullptr || version || refused->latest == asked) {
        co_return first;
    }
    const std::string latest = refused->latest;
    ReportResponse second = co_await send(path, salesQuery(frequency, reportDate, latest), cancel);
    if (!std::holds_alternative<response::WrongVersion>(second)) {
        versions_[frequency] = latest;
    }
    co_return second;
}

QCoro::Task<ReportResponse> ASCClient::fetchFinance(std::string fiscalPeriod, std::stop_token cancel) {
    std::vector<QueryItem> query{{"filter[vendorNumber]", credentials_.vendorNumber},
                                 {"filter[reportType]", "FINANCIAL"},
                                 {"filter[regionCode]", "ZZ"},
                                 {"filter[reportDate]", std::move(fiscalPeriod)}};
    co_return co_await send("/v1/financeReports", std::move(query), std::move(cancel));
}

std::vector<QueryItem> ASCClient::salesQuery(ReportFrequency frequency, const std::string& reportDate,
                                             const std::string& version) const {
    return {{"filter[vendorNumber]", credentials_.vendorNumber},
            {"filter[reportType]", "SALES"},
            {"filter[reportSubType]", "SUMMARY"},
            {"filter[frequency]", std::string(rawText(frequency))},
            {"filter[reportDate]", reportDate},
            {"filter[version]", version}};
}

QCoro::Task<ReportResponse> ASCClient::send(std::string path, std::vector<QueryItem> queryItems,
                                            std::stop_token cancel) {
    auto url = requestUrl(origin_, path, queryItems);
    if (!url) {
        co_return response::Failure{"could not build request URL"};
    }
    HttpRequest request;
    Redaction secrets;
    try {
        const std::string token = currentToken();
        secrets = Redaction(credentials_, token);
        request = reportRequest(*std::move(url), token);
    } catch (const std::exception& error) {
        co_return response::AuthFailure{error.what()};
    }
    HttpResult result = co_await http_.get(std::move(request), std::move(cancel));
    auto* const answer = std::get_if<HttpResponse>(&result);
    if (answer == nullptr) {
        const auto failure = std::get<HttpFailure>(result);
        co_return response::Failure{std::string(storedText(failure)), failure};
    }
    if (!answer->status) {
        co_return response::Failure{"no HTTP response"};
    }
    notes_ = serviceNotes(*answer);
    if (*answer->status != 200) {
        ReportResponse response =
            withoutSecrets(classifyResponse(*answer->status, secrets.of(std::move(answer->body))), secrets);
        if (auto* const refused = std::get_if<response::AuthFailure>(&response)) {
            refused->clockAhead = clockAhead();
        }
        co_return response;
    }
    co_return response::Success{std::move(answer->body)};
}

std::optional<std::chrono::minutes> ASCClient::clockAhead() const {
    const auto ahead = notes_.time ? clock_.now() - *notes_.time : Instant::duration::zero();
    return abs(ahead) > clockTolerance ? std::optional(std::chrono::round<std::chrono::minutes>(ahead))
                                       : std::nullopt;
}

std::string ASCClient::redacted(std::string text) const {
    return Redaction(credentials_, cachedToken_ ? cachedToken_->value : "").of(std::move(text));
}

std::string ASCClient::currentToken() {
    if (cachedToken_ && isFresh(*cachedToken_)) {
        return cachedToken_->value;
    }
    const Instant now = clock_.now();
    std::string token = makeAPIToken(credentials_, now);
    cachedToken_ = CachedToken{std::move(token), now + tokenLifetime, clock_.monotonic()};
    return cachedToken_->value;
}

bool ASCClient::isFresh(const CachedToken& token) const {
    const auto age = clock_.monotonic() - token.signedAt;
    return token.expires > clock_.now() + tokenReserve && age < tokenLifetime - tokenReserve;
}

}  // namespace vantrell
