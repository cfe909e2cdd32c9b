#pragma once

#include "data/ReportStatus.h"

#include <cstddef>
#include <string_view>

namespace vantrell {

// Which reports are asked for. The service has no call that lists what exists, so a run asks by these spans,
// counted back from today: offset 1 is yesterday, last month or last year.

inline constexpr int daysOfSync = 14;
inline constexpr int monthsOfSync = 2;
inline constexpr int yearsOfSync = 1;
inline constexpr int financePeriodsOfSync = 2;  ///< after the newest finished one
/// Stands for the newest finished fiscal period where there is none.
inline constexpr std::string_view financeSeed = "2023-12";

inline constexpr int daysOfBackfill = 365;
inline constexpr int monthsOfBackfill = 12;
inline constexpr int earliestBackfillYear = 2008;
inline constexpr std::string_view firstBackfillPeriod = "2024-01";
inline constexpr std::size_t maxFiscalPeriods = 400;

/// The last offset at which a day without sales is asked for again.
inline constexpr int lastOffsetOfEmptyDay = 3;

/// Whether an ordinary run asks for the day at `offset`, given what is stored of it:
///
///     ok, unavailable            no
///     empty                      at offsets 1 to 3
///     pending, error, missing    yes
[[nodiscard]] bool isDayDue(ReportStatus stored, int offset);

// A report that was answered with "no sales" may yet come: it is asked for again until the answer was given
// more than so many days after the last day that it covers.

inline constexpr int settlingDaysOfDay = 3;
inline constexpr int settlingDaysOfMonth = 10;  ///< and of a year
inline constexpr int settlingDaysOfFiscalPeriod = 60;

/// Whether a report is left as it is unless it is forced: `ok` and `unavailable`, and no other.
[[nodiscard]] bool isFinal(ReportStatus stored);

}  // namespace vantrell
