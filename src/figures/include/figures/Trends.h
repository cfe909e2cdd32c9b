#pragma once

#include "base/Instant.h"
#include "currency/CurrencyConverter.h"
#include "data/ReportStatus.h"
#include "figures/AppFilter.h"
#include "figures/Periods.h"
#include "figures/Snapshot.h"
#include "locale/Locale.h"

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
    std::optional<std::int64_t> appID;  ///< absent for all others together, which have no title
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
    std::vector<TrendLegendItem> legend;  ///< apps by size, then all others together
};

/// The first day of the bucket that `day` lies in.
[[nodiscard]] CivilDate trendPeriodStart(CivilDate day, TrendGranularity granularity,
                                         std::chrono::weekday firstWeekday);

/// One status for several days: the best of ok, empty and pending that any of them has, else that of the
/// first; `missing` for none.
[[nodiscard]] ReportStatus combinedStatus(const std::vector<ReportStatus>& statuses);

/// The days from `from` to `to` cut into buckets; none if a key is no date or `from` is the later one.
[[nodiscard]] TrendBuckets trendBuckets(const Snapshot& snapshot, const Locale& locale,
                                        const std::string& from, const std::string& to,
                                        TrendGranularity granularity);
/// The bucket that begins with `start`, for the user.
[[nodiscard]] std::string bucketLabel(const Locale& locale, CivilDate start, TrendGranularity granularity);
/// Each bucket's figures and how many of its days were fetched, newest first.
[[nodiscard]] std::vector<PeriodStat> bucketStats(const SharedSnapshot& snapshot, const Locale& locale,
                                                  const std::string& from, const std::string& to,
                                                  TrendGranularity granularity, const AppFilter& apps);
/// Each bucket split by app. The eight apps that earned most in all time have a colour, which thus depends on
/// neither range nor filter. Without a filter what belongs to no app with a colour falls under all others
/// together; with one every app of the filter stands by itself. Lines without a rate are left out.
[[nodiscard]] Trend trend(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                          const Locale& locale, const std::string& from, const std::string& to,
                          TrendGranularity granularity, const AppFilter& apps);

}  // namespace vantrell
