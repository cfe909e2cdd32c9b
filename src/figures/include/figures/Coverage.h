#pragma once

#include "calendar/ReportCalendar.h"
#include "figures/Snapshot.h"

#include <string>
#include <vector>

namespace vantrell {

/// How many days of a stretch are known: their report is there, or there were no sales.
struct DayCounts {
    int days = 0;
    int known = 0;
    int failed = 0;
    int missing = 0;  ///< never asked for
};

/// Of the days from `from` to `to`, both day keys included.
[[nodiscard]] DayCounts dayCounts(const Snapshot& snapshot, const std::string& from, const std::string& to);

struct CoveredDay {
    CivilDate day;
    ReportStatus status = ReportStatus::missing;
};

/// The days whose reports the service keeps, up to yesterday, oldest first.
[[nodiscard]] std::vector<CoveredDay> coveredDays(const Snapshot& snapshot, const ReportCalendar& calendar);

/// How much of what the service keeps is stored.
struct Coverage {
    DayCounts days;       ///< of the last year
    int knownMonths = 0;  ///< of the last `monthsOfBackfill`
    int years = 0;        ///< with a report that covers them
    int payoutPeriods = 0;
    /// There is nothing more to fetch but what isn't published yet.
    [[nodiscard]] bool isWhole() const;
};

[[nodiscard]] Coverage coverage(const Snapshot& snapshot, const ReportCalendar& calendar);

}  // namespace vantrell
