#pragma once

#include "calendar/ReportCalendar.h"
#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"

#include <string>
#include <vector>

namespace vantrell {

/// Which reports a period's figures come from.
enum class PeriodSource {
    dailyReports,
    someDailyReports,  ///< not all of its days are known
    monthToDate,
    yearToDate,
    monthlyReport,
    disputedMonthlyReport,  ///< all of its days are known, and they say something else
    yearlyReport,
};

/// One month, year or other stretch of a list.
struct PeriodStat {
    std::string label;
    PeriodSource source = PeriodSource::dailyReports;
    AggregateStats stats;
    // Of a bucket and where some days aren't known: how many it has, and how many of them need no further
    // request.
    int days = 0;
    int fetchedDays = 0;
    bool operator==(const PeriodStat&) const = default;
};

/// The current month and the 12 before it, newest first.
[[nodiscard]] std::vector<PeriodStat> monthStats(const SharedSnapshot& snapshot,
                                                 const ReportCalendar& calendar, const AppFilter& apps);
/// The years that have figures, newest first.
[[nodiscard]] std::vector<PeriodStat> yearStats(const SharedSnapshot& snapshot,
                                                const ReportCalendar& calendar, const AppFilter& apps);

}  // namespace vantrell
