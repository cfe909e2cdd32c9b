#include "calendar/DayKey.h"

#include "base/WholeNumber.h"
#include "calendar/YearMonth.h"

#include <algorithm>
#include <array>

namespace vantrell {
namespace {

using std::chrono::sys_days;

constexpr std::int64_t lastYear = 9999;
constexpr auto firstDay = sys_days(std::chrono::year(1) / 1 / 1);
constexpr auto lastDay = sys_days(std::chrono::year(lastYear) / 12 / 31);
// More days or months than those years have.
constexpr std::int64_t largestCount = 4'000'000;

std::int64_t yearOf(CivilDate day) {
    return static_cast<int>(day.year());
}

std::int64_t monthOf(CivilDate day) {
    return static_cast<unsigned>(day.month());
}

bool isCountable(std::int64_t count) {
    return count >= -largestCount && count <= largestCount;
}

/// The first of a month that is counted from January of the year 0.
std::optional<CivilDate> firstOfMonth(std::int64_t monthsSinceYearZero) {
    if (monthsSinceYearZero < 12 || monthsSinceYearZero >= (lastYear + 1) * 12) {
        return std::nullopt;
    }
    return std::chrono::year(static_cast<int>(monthsSinceYearZero / 12)) /
           static_cast<int>(monthsSinceYearZero % 12 + 1) / 1;
}

std::optional<std::array<std::int64_t, 3>> threeParts(std::string_view text) {
    const auto first = text.find('-');
    const auto second = first == std::string_view::npos ? first : text.find('-', first + 1);
    if (second == std::string_view::npos) {
        return std::nullopt;
    }
    const auto year = wholeNumber(text.substr(0, first));
    const auto month = wholeNumber(text.substr(first + 1, second - first - 1));
    const auto day = wholeNumber(text.substr(second + 1));
    // A further dash would be read as a sign.
    if (!year || !month || !day || *day < 0) {
        return std::nullopt;
    }
    return std::array{*year, *month, *day};
}

}  // namespace

std::string dayKey(CivilDate day) {
    return monthKey(day) + "-" + zeroPadded(static_cast<unsigned>(day.day()), 2);
}

std::string monthKey(CivilDate day) {
    return yearMonthText({yearOf(day), monthOf(day)});
}

std::string yearLabel(CivilDate day) {
    return zeroPadded(yearOf(day), 4);
}

std::string reportLabel(CivilDate day, ReportFrequency frequency) {
    switch (frequency) {
        case ReportFrequency::monthly:
            return monthKey(day);
        case ReportFrequency::yearly:
            return yearLabel(day);
        case ReportFrequency::daily:
        case ReportFrequency::weekly:
            break;
    }
    return dayKey(day);
}

std::optional<CivilDate> dateFromDayKey(std::string_view text) {
    const auto parts = threeParts(text);
    if (!parts || !std::ranges::all_of(*parts, isCountable)) {
        return std::nullopt;
    }
    const auto [year, month, day] = *parts;
    const auto first = firstOfMonth(year * 12 + month - 1);
    return first ? movedByDays(*first, day - 1) : std::nullopt;
}

std::optional<CivilDate> movedByDays(CivilDate day, std::int64_t count) {
    const auto moved = sys_days(day) + std::chrono::days(std::clamp(count, -largestCount, largestCount));
    return moved >= firstDay && moved <= lastDay ? std::optional<CivilDate>(moved) : std::nullopt;
}

std::optional<CivilDate> movedByMonths(CivilDate day, std::int64_t months) {
    const auto count = std::clamp(months, -largestCount, largestCount);
    const auto first = firstOfMonth(yearOf(day) * 12 + monthOf(day) - 1 + count);
    if (!first) {
        return std::nullopt;
    }
    const auto last = (first->year() / first->month() / std::chrono::last).day();
    return first->year() / first->month() / std::min(day.day(), last);
}

std::vector<KeyedDay> days(std::string_view from, std::string_view to) {
    const auto first = dateFromDayKey(from);
    const auto last = dateFromDayKey(to);
    if (!first || !last || *first > *last) {
        return {};
    }
    const auto end = sys_days(*last);
    const auto start = std::max(sys_days(*first), end - std::chrono::days(maxDaysInRange - 1));
    std::vector<KeyedDay> result;
    result.reserve(static_cast<std::size_t>((end - start).count() + 1));
    for (auto day = start; day <= end; day += std::chrono::days(1)) {
        result.push_back({dayKey(day), day});
    }
    return result;
}

}  // namespace vantrell
