#include "sample/ReportPeriods.h"

#include <array>
#include <charconv>
#include <utility>

namespace vantrell::sample {

namespace {

// Exactly `width` digits at `at`.
std::optional<int> digitsAt(std::string_view text, std::size_t at, std::size_t width) {
    const auto piece = text.substr(at, width);
    int value = 0;
    const auto result = std::from_chars(piece.begin(), piece.end(), value);
    if (result.ec != std::errc{} || result.ptr != piece.end() || piece.front() == '-') {
        return std::nullopt;
    }
    return value;
}

std::optional<std::chrono::year_month> monthOf(std::string_view text) {
    if (text.size() != 7 || text[4] != '-') {
        return std::nullopt;
    }
    const auto year = digitsAt(text, 0, 4);
    const auto month = digitsAt(text, 5, 2);
    if (!year || !month || *month < 1 || *month > 12) {
        return std::nullopt;
    }
    return std::chrono::year{*year} / std::chrono::month{static_cast<unsigned>(*month)};
}

std::optional<Day> dayNamed(std::string_view text) {
    if (text.size() != 10 || text[7] != '-') {
        return std::nullopt;
    }
    const auto month = monthOf(text.substr(0, 7));
    const auto day = digitsAt(text, 8, 2);
    if (!month || !day) {
        return std::nullopt;
    }
    const auto date = *month / std::chrono::day{static_cast<unsigned>(*day)};
    return date.ok() ? std::optional{Day{date}} : std::nullopt;
}

std::optional<DateRange> weekEnding(std::string_view text) {
    const auto last = dayNamed(text);
    if (!last || std::chrono::weekday{*last} != std::chrono::Sunday) {
        return std::nullopt;
    }
    return DateRange{*last - std::chrono::days{6}, *last};
}

}  // namespace

std::optional<ReportKind> salesReportKind(std::string_view frequency) {
    constexpr std::array<std::pair<std::string_view, ReportKind>, 4> kinds{{{"DAILY", ReportKind::daily},
                                                                            {"WEEKLY", ReportKind::weekly},
                                                                            {"MONTHLY", ReportKind::monthly},
                                                                            {"YEARLY", ReportKind::yearly}}};
    for (const auto& [name, kind] : kinds) {
        if (name == frequency) {
            return kind;
        }
    }
    return std::nullopt;
}

std::optional<DateRange> reportDays(ReportKind kind, std::string_view reportDate) {
    switch (kind) {
        case ReportKind::daily: {
            const auto day = dayNamed(reportDate);
            return day ? std::optional{DateRange{*day, *day}} : std::nullopt;
        }
        case ReportKind::weekly:
            return weekEnding(reportDate);
        case ReportKind::monthly: {
            const auto month = monthOf(reportDate);
            return month ? std::optional{wholeMonth(*month)} : std::nullopt;
        }
        case ReportKind::yearly: {
            const auto year = reportDate.size() == 4 ? digitsAt(reportDate, 0, 4) : std::nullopt;
            return year ? std::optional{wholeYear(*year)} : std::nullopt;
        }
        case ReportKind::finance: {
            const auto period = monthOf(reportDate);
            return period ? std::optional{wholeMonth(*period - std::chrono::months{3})} : std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace vantrell::sample
