#pragma once

#include <chrono>

namespace vantrell::sample {

/// A day of the account's calendar. The service's days are those of Pacific time.
using Day = std::chrono::sys_days;

/// A stretch of days, both ends included.
struct DateRange {
    Day first;
    Day last;

    bool operator==(const DateRange&) const = default;
};

[[nodiscard]] constexpr Day dayOf(int year, unsigned month, unsigned dayOfMonth) {
    return Day{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{dayOfMonth}};
}

/// A whole calendar month.
[[nodiscard]] constexpr DateRange wholeMonth(std::chrono::year_month month) {
    return {Day{month / std::chrono::day{1}}, Day{month / std::chrono::last}};
}

/// A whole calendar year.
[[nodiscard]] constexpr DateRange wholeYear(int year) {
    return {dayOf(year, 1, 1), dayOf(year, 12, 31)};
}

/// A value that holds from a day on, until the next one of its list.
template <typename Value>
struct Since {
    Day day;
    Value value;
};

}  // namespace vantrell::sample
