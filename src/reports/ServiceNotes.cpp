#include "reports/ServiceNotes.h"

#include "base/WholeNumber.h"

#include <string_view>
#include <utility>

#include <QDateTime>

namespace vantrell {
namespace {

constexpr std::string_view remaining = "user-hour-rem:";

/// Of a text such as "user-hour-lim:3500;user-hour-rem:500;".
std::optional<int> requestsLeft(std::string_view text) {
    const auto start = text.find(remaining);
    if (start == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = text.substr(start + remaining.size());
    const auto number = vantrell::wholeNumber(rest.substr(0, rest.find(';')));
    return number && *number >= 0 && std::in_range<int>(*number) ? std::optional(static_cast<int>(*number))
                                                                 : std::nullopt;
}

/// Of a text such as "Sun, 22 Nov 2026 12:00:00 GMT", whose zone Qt knows as an offset alone.
std::optional<Instant> instant(const std::string& text) {
    const QString date = QString::fromStdString(text).replace(QLatin1String("GMT"), QLatin1String("+0000"));
    const auto time = QDateTime::fromString(date, Qt::RFC2822Date);
    return time.isValid() ? std::optional<Instant>(std::chrono::sys_time<std::chrono::milliseconds>(
                                std::chrono::milliseconds(time.toMSecsSinceEpoch())))
                          : std::nullopt;
}

}  // namespace

ServiceNotes serviceNotes(const HttpResponse& answer) {
    ServiceNotes notes;
    for (const HttpHeader& header : answer.headers) {
        if (header.name == rateLimitHeader) {
            notes.requestsLeft = requestsLeft(header.value);
        } else if (header.name == dateHeader) {
            notes.time = instant(header.value);
        }
    }
    return notes;
}

}  // namespace vantrell
