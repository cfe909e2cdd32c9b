#include "reports/ClassifyResponse.h"

#include "base/LowerCase.h"
#include "base/Utf8.h"
#include "data/Reports.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {
namespace {

constexpr std::size_t rawDetailBytes = 300;

bool isTextOrAbsent(const QJsonValue& value) {
    return value.isString() || value.isNull() || value.isUndefined();
}

/// The words of the error envelope; absent if the body isn't one, or has no list of errors.
std::optional<std::string> envelopeDetail(std::string_view body) {
    const auto bytes = QByteArray::fromRawData(body.data(), static_cast<qsizetype>(body.size()));
    const QJsonValue errors = QJsonDocument::fromJson(bytes).object().value(QLatin1String("errors"));
    if (!errors.isArray()) {
        return std::nullopt;
    }
    std::string joined;
    bool isFirst = true;
    for (const QJsonValue entry : errors.toArray()) {
        const QJsonValue detail = entry[QLatin1String("detail")];
        const QJsonValue title = entry[QLatin1String("title")];
        if (!entry.isObject() || !isTextOrAbsent(detail) || !isTextOrAbsent(title)) {
            return std::nullopt;
        }
        const QJsonValue& words = detail.isString() ? detail : title;
        if (words.isString()) {
            joined += std::exchange(isFirst, false) ? "" : " ";
            joined += words.toString().toStdString();
        }
    }
    return joined;
}

std::string detailText(std::string_view body) {
    if (auto detail = envelopeDetail(body)) {
        return *std::move(detail);
    }
    return repairedUtf8(std::string(body.substr(0, rawDetailBytes)));
}

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

/// The first run of digits, underscore, digits. By hand, since a library's regular expressions recurse on
/// hostile lengths.
std::optional<std::string> firstVersion(std::string_view text) {
    for (std::size_t mark = text.find('_'); mark != std::string_view::npos; mark = text.find('_', mark + 1)) {
        std::size_t start = mark;
        while (start > 0 && isDigit(text[start - 1])) {
            --start;
        }
        std::size_t end = mark + 1;
        while (end < text.size() && isDigit(text[end])) {
            ++end;
        }
        if (start < mark && end > mark + 1) {
            return std::string(text.substr(start, end - start));
        }
    }
    return std::nullopt;
}

bool holds(std::string_view text, std::string_view words) {
    return text.find(words) != std::string_view::npos;
}

ReportResponse classifyBadRequest(std::string_view detail, std::string message) {
    if (holds(lowerCase(detail), "version")) {
        if (auto latest = firstVersion(detail)) {
            return response::WrongVersion{*std::move(latest), std::move(message)};
        }
    }
    return response::Failure{std::move(message)};
}

ReportResponse classifyNotFound(int status, std::string_view detail, std::string message) {
    const std::string words = lowerCase(detail);
    if (holds(words, "no longer available")) {
        return response::Gone{std::move(message)};
    }
    if (holds(words, "not available yet") || holds(words, "not yet available")) {
        return response::NotYetAvailable{std::move(message)};
    }
    if (holds(words, "no sales")) {
        return response::NoSales{std::move(message)};
    }
    if (status == 410) {
        return response::Gone{std::move(message)};
    }
    return response::Failure{std::move(message)};
}

}  // namespace

ReportResponse classifyResponse(int status, std::string_view body) {
    const std::string detail = detailText(body);
    std::string message = "HTTP " + std::to_string(status) + ": " + detail;
    message.resize(cutAtCodePoint(message, mostMessageBytes).size());
    switch (status) {
        case 400:
            return classifyBadRequest(detail, std::move(message));
        case 401:
        case 403:
            return response::AuthFailure{std::move(message)};
        case 429:
            return response::RateLimited{std::move(message)};
        case 404:
        case 410:
            return classifyNotFound(status, detail, std::move(message));
        default:
            return response::Failure{std::move(message)};
    }
}

}  // namespace vantrell
