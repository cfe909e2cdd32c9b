#pragma once

#include "base/Instant.h"
#include "data/ReportStatus.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrell {

/// How long a bucket of a trend is. Weeks begin on the first weekday of the user's locale.
enum class TrendGranularity { day, week, month };

/// A range of days cut into buckets.
struct TrendBuckets {
    std::vector<CivilDate> starts;  ///< oldest first; the first one may lie before the range
    std::map<std::string, CivilDate, std::less<>> startByDay;  ///< by day key, for the days of the range
    std::map<CivilDate, std::vector<ReportStatus>> statuses;   ///< by start, of those days in order
};

/// The share of one app, or of all others together, in a bucket; in the display currency and only for
/// drawing.
struct TrendSlice {
    std::optional<std::int64_t> appID;  ///< absent for "Other"
    std::string title;
    std::optional<int> colorIndex;  ///< from 0 to 7; absent for an app that is not among the largest
    double proceeds = 0;            ///< sum of the lines worth more than 0
    double refunds = 0;             ///< sum of the lines worth less than 0; never above zero
};

struct TrendPoint {
    CivilDate periodStart;
    ReportStatus status = ReportStatus::missing;
    std::vector<TrendSlice> slices;  ///< in the order of the legend; none where nothing moved money
};

/// Fields as those of a slice.
struct TrendLegendItem {
    std::optional<std::int64_t> appID;
    std::string title;
    std::optional<int> colorIndex;
};

struct Trend {
    std::vector<TrendPoint> points;       ///< oldest first
    std::vector<TrendLegendItem> legend;  ///< apps by size, then "Other"
};

/// The first day of the bucket that `day` lies in.
[[nodiscard]] CivilDate trendPeriodStart(CivilDate day, TrendGranularity granularity,
                                         std::chrono::weekday firstWeekday);

/// One status for several days: the best of ok, empty and pending that any of them has, else that of the
/// first; `missing` for none.
[[nodiscard]] ReportStatus combinedStatus(const std::vector<ReportStatus>& statuses);

}  // namespace vantrell
