#include "ChartSums.h"
#include "calendar/DayKey.h"
#include "figures/EarningsStore.h"
#include "figures/OfferGroups.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

// Figures by day, week or month, and who earned them.

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
            return {std::nullopt, "Other", std::nullopt};
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
std::string fetchedNote(const std::vector<ReportStatus>& statuses) {
    const auto fetched = std::ranges::count_if(statuses, [](ReportStatus status) {
        return status == ReportStatus::ok || status == ReportStatus::empty;
    });
    const std::string total = std::to_string(statuses.size());
    const bool isComplete = static_cast<std::size_t>(fetched) == statuses.size();
    return isComplete ? total + " days" : std::to_string(fetched) + " of " + total + " days fetched";
}

std::optional<CivilDate> bucketOf(const TrendBuckets& buckets, std::string_view day) {
    const auto start = buckets.startByDay.find(day);
    return start == buckets.startByDay.end() ? std::nullopt : std::optional(start->second);
}

CellsByStart trendCells(const EarningsStore& store, const SalesSelection& rows, const TrendBuckets& buckets,
                        const TrendSeries& series) {
    const SalesSnapshot& snapshot = store.salesRows();
    const OfferGroups groups(snapshot.offers(), [&](const SalesOffer& offer) {
        return isSold(offer.kind) ? std::optional(series.of(store.catalog().owningApp(offer.appleID)))
                                  : std::nullopt;
    });
    ChartSums sums(groups, snapshot.currencies(), store.converter());
    CellsByStart cells;
    rows.forEachSection(
        [&](std::size_t chunk) { return bucketOf(buckets, snapshot.chunks()[chunk]->reportDate); },
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

TrendBuckets EarningsStore::trendBuckets(const std::string& from, const std::string& to,
                                         TrendGranularity granularity) const {
    TrendBuckets buckets;
    for (const auto& [key, day] : days(from, to)) {
        const CivilDate start = trendPeriodStart(day, granularity, locale_.firstWeekday());
        if (buckets.starts.empty() || buckets.starts.back() != start) {
            buckets.starts.push_back(start);
        }
        buckets.startByDay.emplace(key, start);
        buckets.statuses[start].push_back(dailyStatus(key));
    }
    return buckets;
}

std::string EarningsStore::bucketLabel(CivilDate start, TrendGranularity granularity) const {
    constexpr auto otherDays = std::chrono::days(6);
    switch (granularity) {
        case TrendGranularity::day:
            break;
        case TrendGranularity::week: {
            const auto first = trendPeriodStart(start, granularity, locale_.firstWeekday());
            return locale_.dayRange(first, std::chrono::sys_days(first) + otherDays);
        }
        case TrendGranularity::month:
            return locale_.monthYear(start);
    }
    return locale_.weekdayMonthDay(start);
}

std::vector<PeriodStat> EarningsStore::bucketStats(const std::string& from, const std::string& to,
                                                   TrendGranularity granularity,
                                                   const AppFilter& apps) const {
    const TrendBuckets buckets = trendBuckets(from, to, granularity);
    std::map<CivilDate, StatsAccumulator> sums;
    dailyRows(from, to, apps)
        .forEachSection(
            [&](std::size_t chunk) { return bucketOf(buckets, *reportDate(chunk)); },
            [&sums](CivilDate start, const std::vector<OfferSum>& lines) { sums[start].add(lines); });
    std::vector<PeriodStat> stats;
    stats.reserve(buckets.starts.size());
    for (const auto& [start, statuses] : buckets.statuses) {
        stats.push_back({bucketLabel(start, granularity), fetchedNote(statuses),
                         sums[start].stats(salesRows_.currencies())});
    }
    std::ranges::reverse(stats);
    return stats;
}

std::vector<std::int64_t> EarningsStore::rankedApps() const {
    const OfferGroups owners = ownersOfSold();
    ChartSums sums(owners, salesRows_.currencies(), converter_);
    const auto amounts = sums.amounts(allTimeRows({}).sums());
    std::vector<std::pair<double, std::int64_t>> ranking;
    for (std::size_t owner = 0; owner < amounts.size(); ++owner) {
        if (amounts[owner]) {
            ranking.emplace_back(amounts[owner]->total(), owners.ids()[owner]);
        }
    }
    std::ranges::stable_sort(ranking, std::ranges::greater(), &std::pair<double, std::int64_t>::first);
    std::vector<std::int64_t> apps;
    std::ranges::copy(ranking | std::views::values, std::back_inserter(apps));
    return apps;
}

Trend EarningsStore::trend(const std::string& from, const std::string& to, TrendGranularity granularity,
                           const AppFilter& apps) const {
    const TrendBuckets buckets = trendBuckets(from, to, granularity);
    if (buckets.starts.empty()) {
        return {};
    }
    const TrendSeries series(rankedApps(), apps);
    CellsByStart cells = trendCells(*this, dailyRows(from, to, apps), buckets, series);
    std::map<std::size_t, TrendLegendItem> legend;
    for (const std::size_t used : seriesInUse(cells)) {
        legend.emplace(used, series.legend(used, catalog_));
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
