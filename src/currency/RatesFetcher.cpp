#include "currency/RatesFetcher.h"

#include "CurrencyLog.h"

#include <chrono>
#include <utility>

#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {
namespace {

constexpr auto idleTimeout = std::chrono::seconds(60);
constexpr auto totalTimeout = std::chrono::minutes(2);
constexpr std::size_t maxBodyBytes = std::size_t{1} << 20U;

HttpRequest ratesRequest(const std::string& origin) {
    return {.url = origin + "/v6/latest/USD",
            .headers = {{"Accept", "application/json"}},
            .redirects = Redirects::follow,
            .idleTimeout = idleTimeout,
            .totalTimeout = totalTimeout,
            .maxBodyBytes = maxBodyBytes,
            .maxErrorBodyBytes = maxBodyBytes};
}

}  // namespace

QCoro::Task<RatesAnswer> RatesFetcher::fetch(HttpClient& http, std::string origin, std::stop_token cancel) {
    const HttpResult result = co_await http.get(ratesRequest(origin), std::move(cancel));
    if (const auto* failure = std::get_if<HttpFailure>(&result)) {
        co_return RatesError{std::string(storedText(*failure))};
    }
    auto answer = parse(std::get<HttpResponse>(result).body);
    if (const auto* rates = std::get_if<Rates>(&answer)) {
        qCInfo(currencyLog) << rates->size() << "rates";
    } else {
        qCWarning(currencyLog) << std::get<RatesError>(answer).description.c_str();
    }
    co_return answer;
}

RatesAnswer RatesFetcher::parse(std::string_view body) {
    QJsonParseError error;
    const auto document =
        QJsonDocument::fromJson(QByteArray(body.data(), static_cast<qsizetype>(body.size())), &error);
    if (error.error != QJsonParseError::NoError) {
        return RatesError{"The exchange rates can't be read: " + error.errorString().toStdString()};
    }
    const QJsonValue result = document.object().value(QStringLiteral("result"));
    const QJsonValue members = document.object().value(QStringLiteral("rates"));
    if (!result.isString() || !members.isObject()) {
        return RatesError{
            "The exchange rates can't be read: a text \"result\" and an object \"rates\" are missing"};
    }
    Rates rates;
    const QJsonObject object = members.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (!member->isDouble()) {
            return RatesError{"The exchange rates can't be read: a rate is no number"};
        }
        rates.emplace(member.key().toStdString(), member->toDouble());
    }
    if (result.toString() != QStringLiteral("success") || rates.empty()) {
        return RatesError{"The exchange-rate service gave no rates."};
    }
    return rates;
}

}  // namespace vantrell
