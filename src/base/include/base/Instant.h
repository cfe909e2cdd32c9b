#pragma once

#include <chrono>

namespace vantrell {

/// A point in time, in microseconds of UTC.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;

/// A day of the proleptic Gregorian calendar, without a time or a zone.
using CivilDate = std::chrono::year_month_day;

/// The start of the year 1, which stands for "never" and "none given" in stored records. It is a real
/// value that sorts before every date of a report.
inline constexpr Instant distantPast =
    std::chrono::sys_days{std::chrono::year{1} / std::chrono::January / std::chrono::day{1}};

}  // namespace vantrell
