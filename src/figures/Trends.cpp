#include "figures/Trends.h"

#include "ChartSums.h"
#include "StatsAccumulator.h"
#include "calendar/DayKey.h"
#include "figures/Apps.h"
#include "figures/SalesSelection.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

constexpr std::size_t colorCount = 8;

/// The apps that are shown by themselves, in the order of the legend, and last everything else together.
class TrendSeries {
  public:
    TrendSeries(std::vector<std::int64_t> ranked, const AppFilter& apps) : apps_(std::move(ranked)) {
        apps_.resize(std::min(apps_.size(), colorCount));
        colored_ = apps_.size();
        if (apps) {
            std::ranges::copy_if(*apps, std::back_inserter(apps_), [this](std::int64_t app) {
                return std::ranges::find(apps_, app) == apps_.end();
            });
        }
    }

    [[nodiscard]] std::size_t size() const { return apps_.size() + 1; }
    [[nodiscard]] std::size_t of(const std::optional<std::int64_t>& app) const {
        const auto known = app ? std::ranges::find(apps_, *app) : apps_.end();
        return static_cast<std::size_t>(known - apps_.begin());
    }
    [[nodiscard]] TrendLegendItem legend(std::size_t series, const Catalog& catalog) const {
        if (series == apps_.size()) {
            return {};
        }
        const std::int64_t app = apps_[series];
        return {app, title(app, catalog),
                series < colored_ ? std::optional(static_cast<int>(series)) : std::nullopt};
    }

  private:
    static std::string title(std::int64_t id, const Catalog& catalog) {
        if (const auto app = catalog.appByID().find(id); app != catalog.appByID().end()) {
            return app->second.title;
        }
        const auto product = catalog.productByID().find(id);
        return product == catalog.productByID().end() ? std::to_string(id) : product->second.title;
    }

    std::vector<std::int64_t> apps_;
    std::size_t colored_ = 0;
};

/// What each series moved in one bucket. A series that moved nothing has no cell.
using Cells = std::map<std::size_t, SignedAmounts>;
using CellsByStart = std::map<CivilDate, Cells>;

/// How many of a bucket's days need no further request.
int fetchedDays(const std::vector<ReportStatus>& statuses) {
    return static_cast<int>(std::ranges::count_if(statuses, isKnown));
}

std::optional<CivilDate> bucketOf(const TrendBuckets& buckets, std::string_view day) {
    const auto start = buckets.startByDay.find(day);
    return start == buckets.startByDay.end() ? std::nullopt : std::optional(start->second);
}

CellsByStart trendCells(const Snapshot& snapshot, const CurrencyConverter& converter,
                        const SalesSelection& selection, const TrendBuckets& buckets,
                        const TrendSeries& series) {
    const SalesRows& rows = snapshot.salesRows;
    const OfferGroups groups(rows.offers(), [&](const SalesOffer& offer) {
        return isSold(offer.kind)
                   ? std::optional(series.of(snapshot.catalog->owningApp(offer.stored.appleID)))
                   : std::nullopt;
    });
    ChartSums sums(groups, rows.currencies(), converter);
    CellsByStart cells;
    selection.forEachSection([&](std::size_t chunk) { return bucketOf(buckets, *rows.reportDate(chunk)); },
                             [&](CivilDate start, const std::vector<OfferSum>& lines) {
                                 const auto amounts = sums.amounts(lines);
                                 for (std::size_t group = 0; group < amounts.size(); ++group) {
                                     if (amounts[group] && !amounts[group]->isZero()) {
                                         cells[start].emplace(groups.ids()[group], *amounts[group]);
                                     }
                                 }
                             });
    return cells;
}

std::set<std::size_t> seriesInUse(const CellsByStart& cells) {
    std::set<std::size_t> used;
    for (const auto& [start, ofBucket] : cells) {
        std::ranges::copy(ofBucket | std::views::keys, std::inserter(used, used.end()));
    }
    return used;
}

std::vector<TrendSlice> slices(const Cells& cells, const std::map<std::size_t, TrendLegendItem>& legend) {
    std::vector<TrendSlice> slices;
    slices.reserve(cells.size());
    for (const auto& [series, amount] : cells) {
        const TrendLegendItem& item = legend.at(series);
        slices.push_back({item.appID, item.title, item.colorIndex, amount.proceeds, amount.refunds});
    }
    return slices;
}

}  // namespace

CivilDate trendPeriodStart(CivilDate day, TrendGranularity granularity, std::chrono::weekday firstWeekday) {
    using std::chrono::sys_days;
    switch (granularity) {
        case TrendGranularity::day:
            break;
        case TrendGranularity::week:
            return sys_days(day) - (std::chrono::weekday(sys_days(day)) - firstWeekday);
        case TrendGranularity::month:
            return day.year() / day.month() / 1;
    }
    return day;
}

ReportStatus combinedStatus(const std::vector<ReportStatus>& statuses) {
    using enum ReportStatus;
    for (const ReportStatus status : {ok, empty, pending}) {
        if (std::ranges::find(statuses, status) != statuses.end()) {
            return status;
        }
    }
    return statuses.empty() ? missing : statuses.front();
}

TrendBuckets trendBuckets(const Snapshot& snapshot, const Locale& locale, const std::string& from,
                          const std::string& to, TrendGranularity granularity) {
    TrendBuckets buckets;
    for (const auto& [key, day] : days(from, to)) {
        const CivilDate start = trendPeriodStart(day, granularity, locale.firstWeekday());
        if (buckets.starts.empty() || buckets.starts.back() != start) {
            buckets.starts.push_back(start);
        }
        buckets.startByDay.emplace(key, start);
        buckets.statuses[start].push_back(snapshot.dailyStatus(key));
    }
    return buckets;
}

std::string bucketLabel(const Locale& locale, CivilDate start, TrendGranularity granularity) {
    constexpr auto otherDays = std::chrono::days(6);
    switch (granularity) {
        case TrendGranularity::day:
            break;
        case TrendGranularity::week: {
            const auto first = trendPeriodStart(start, granularity, locale.firstWeekday());
            return locale.dayRange(first, std::chrono::sys_days(first) + otherDays);
        }
        case TrendGranularity::month:
            return locale.monthYear(start);
    }
    return locale.weekdayMonthDay(start);
}

std::vector<PeriodStat> bucketStats(const SharedSnapshot& snapshot, const Locale& locale,
                                    const std::string& from, const std::string& to,
                                    TrendGranularity granularity, const AppFilter& apps) {
    const TrendBuckets buckets = trendBuckets(*snapshot, locale, from, to, granularity);
    const SalesRows& rows = snapshot->salesRows;
    std::map<CivilDate, StatsAccumulator> sums;
    dailyRows(snapshot, from, to, apps)
        .forEachSection(
            [&](std::size_t chunk) { return bucketOf(buckets, *rows.reportDate(chunk)); },
            [&sums](CivilDate start, const std::vector<OfferSum>& lines) { sums[start].add(lines); });
    std::vector<PeriodStat> stats;
    stats.reserve(buckets.starts.size());
    for (const auto& [start, statuses] : buckets.statuses) {
        stats.push_back({.label = bucketLabel(locale, start, granularity),
                         .stats = sums[start].stats(rows.currencies()),
                         .days = static_cast<int>(statuses.size()),
                         .fetchedDays = fetchedDays(statuses)});
    }
    std::ranges::reverse(stats);
    return stats;
}

Trend trend(const SharedSnapshot& snapshot, const CurrencyConverter& converter, const Locale& locale,
            const std::string& from, const std::string& to, TrendGranularity granularity,
            const AppFilter& apps) {
    const TrendBuckets buckets = trendBuckets(*snapshot, locale, from, to, granularity);
    if (buckets.starts.empty()) {
        return {};
    }
    const TrendSeries series(rankedApps(snapshot, converter), apps);
    CellsByStart cells =
        trendCells(*snapshot, converter, dailyRows(snapshot, from, to, apps), buckets, series);
    std::map<std::size_t, TrendLegendItem> legend;
    for (const std::size_t used : seriesInUse(cells)) {
        legend.emplace(used, series.legend(used, *snapshot->catalog));
    }
    Trend trend;
    std::ranges::copy(legend | std::views::values, std::back_inserter(trend.legend));
    trend.points.reserve(buckets.starts.size());
    for (const CivilDate& start : buckets.starts) {
        trend.points.push_back(
            {start, combinedStatus(buckets.statuses.at(start)), slices(cells[start], legend)});
    }
    return trend;
}

}  // namespace vantrell
