#pragma once

#include "calendar/ReportCalendar.h"
#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"

#include <string>
#include <vector>

namespace vantrell {

/// One month, year or other stretch of a list.
struct PeriodStat {
    std::string label;
    std::string note;  ///< where the figures come from, for the user
    AggregateStats stats;
    bool operator==(const PeriodStat&) const = default;
};

/// The current month and the 12 before it, newest first.
[[nodiscard]] std::vector<PeriodStat> monthStats(const SharedSnapshot& snapshot,
                                                 const ReportCalendar& calendar, const AppFilter& apps);
/// The years that have figures, newest first.
[[nodiscard]] std::vector<PeriodStat> yearStats(const SharedSnapshot& snapshot,
                                                const ReportCalendar& calendar, const AppFilter& apps);

}  // namespace vantrell
