#pragma once

#include "base/Instant.h"
#include "data/ReportFrequency.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

// Days, months and years as text of a fixed width, Gregorian and in ASCII digits whatever the locale. Keys of
// one kind compare as plain text in date order.

[[nodiscard]] std::string dayKey(CivilDate day);     ///< "2026-08-14"
[[nodiscard]] std::string monthKey(CivilDate day);   ///< "2026-08"
[[nodiscard]] std::string yearLabel(CivilDate day);  ///< "2026"

/// The date under which a sales report of `frequency` that covers `day` is asked for and stored: a day key
/// for a daily or weekly one, a month key for a monthly one, a year label for a yearly one.
[[nodiscard]] std::string reportLabel(CivilDate day, ReportFrequency frequency);

/// Reads three whole numbers between dashes. What overflows its month or year is carried on, so that
/// "2026-02-31" is the third of March. Absent for any other text, and outside of the years 1 to 9999.
[[nodiscard]] std::optional<CivilDate> dateFromDayKey(std::string_view text);

/// `day` moved by whole days or months. A day that the month doesn't have becomes its last: a month before
/// the 31st of March lies the end of February. Absent outside of the years 1 to 9999.
[[nodiscard]] std::optional<CivilDate> movedByDays(CivilDate day, std::int64_t days);
[[nodiscard]] std::optional<CivilDate> movedByMonths(CivilDate day, std::int64_t months);

struct KeyedDay {
    std::string key;
    CivilDate day;

    bool operator==(const KeyedDay&) const = default;
};

/// The most days in one range, some 270 years.
inline constexpr std::size_t maxDaysInRange = 100'000;

/// Every day between two keys, both ends included, oldest first; empty if a key is no date or `from` is the
/// later one. Of a longer range the last `maxDaysInRange` days.
[[nodiscard]] std::vector<KeyedDay> days(std::string_view from, std::string_view to);

}  // namespace vantrell
