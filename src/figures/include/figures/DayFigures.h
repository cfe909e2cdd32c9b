#pragma once

#include "base/Instant.h"
#include "data/ReportStatus.h"
#include "figures/AggregateStats.h"

#include <string>

namespace vantrell {

/// One day of a chart. Amounts are in the display currency and only for drawing.
struct DayPoint {
    CivilDate day;
    double proceeds = 0;  ///< sum of the lines worth 0 or more
    double refunds = 0;   ///< sum of the lines worth less than 0; never above zero
    ReportStatus status = ReportStatus::missing;
    bool operator==(const DayPoint&) const = default;
};

/// One day of a table.
struct DayTableRow {
    std::string key;  ///< the day key
    CivilDate day;
    ReportStatus status = ReportStatus::missing;
    AggregateStats stats;
    bool operator==(const DayTableRow&) const = default;
};

/// One month, year or other stretch of a list.
struct PeriodStat {
    std::string label;
    std::string note;  ///< where the figures come from, for the user
    AggregateStats stats;
    bool operator==(const PeriodStat&) const = default;
};

}  // namespace vantrell
