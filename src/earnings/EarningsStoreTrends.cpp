#include "calendar/DayKey.h"
#include "earnings/EarningsStore.h"
#include "earnings/ItemGroups.h"
#include "earnings/LineValues.h"

#include <algorithm>
#include <iterator>
#include <ranges>
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

/// What one series moved in one bucket.
struct Cell {
    bool isUsed = false;
    double proceeds = 0;
    double refunds = 0;

    void add(double value) {
        isUsed = true;
        (value < 0 ? refunds : proceeds) += value;
    }
};

/// The cells of one bucket by series.
using Cells = std::vector<Cell>;
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

CellsByStart trendCells(const EarningsStore& store, const SalesSelection& rows, const TrendBuckets& buckets,
                        const TrendSeries& series) {
    std::vector<std::size_t> seriesOfItem;
    seriesOfItem.reserve(store.salesRows().items().size());
    for (const SalesItem& item : store.salesRows().items()) {
        seriesOfItem.push_back(series.of(store.catalog().owningApp(item.appleID)));
    }
    CellsByStart cells;
    for (const CivilDate& start : buckets.starts) {
        cells[start].resize(series.size());
    }
    LineValues values(store.salesRows(), store.converter());
    Cells* bucket = nullptr;
    rows.forEach(
        [&](const SalesChunk& report) {
            const auto start = buckets.startByDay.find(report.reportDate);
            bucket = start == buckets.startByDay.end() ? nullptr : &cells[start->second];
        },
        [&](const SalesRowRef& row) {
            if (bucket == nullptr || !isSold(row.item().kind)) {
                return;
            }
            if (const double value = values.value(row).value_or(0); value != 0) {
                (*bucket)[seriesOfItem[row.itemNumber()]].add(value);
            }
        });
    return cells;
}

std::vector<std::size_t> seriesInUse(const CellsByStart& cells, std::size_t count) {
    std::vector<std::size_t> used;
    for (std::size_t series = 0; series < count; ++series) {
        if (std::ranges::any_of(cells,
                                [series](const auto& bucket) { return bucket.second[series].isUsed; })) {
            used.push_back(series);
        }
    }
    return used;
}

std::vector<TrendSlice> slices(const Cells& cells, const std::vector<std::size_t>& used,
                               const std::vector<TrendLegendItem>& legend) {
    std::vector<TrendSlice> slices;
    for (std::size_t place = 0; place < used.size(); ++place) {
        if (const Cell& cell = cells[used[place]]; cell.isUsed) {
            const TrendLegendItem& item = legend[place];
            slices.push_back({item.appID, item.title, item.colorIndex, cell.proceeds, cell.refunds});
        }
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
    StatsAccumulator* sum = nullptr;
    dailyRows(from, to, apps)
        .forEach(
            [&](const SalesChunk& report) {
                const auto start = buckets.startByDay.find(report.reportDate);
                sum = start == buckets.startByDay.end() ? nullptr : &sums[start->second];
            },
            [&](const SalesRowRef& row) {
                if (sum != nullptr) {
                    row.addTo(*sum);
                }
            });
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
    const ItemGroups owners(salesRows_.items(), [this](const SalesItem& item) {
        return isSold(item.kind) ? catalog_.owningApp(item.appleID) : std::nullopt;
    });
    LineValues values(salesRows_, converter_);
    std::vector<std::optional<double>> sums(owners.ids().size());
    allTimeRows({}).forEach([&](const SalesRowRef& row) {
        const std::uint32_t owner = owners.ofItem(row.itemNumber());
        const auto value = owner == ItemGroups::none ? std::nullopt : values.value(row);
        if (value) {
            sums[owner] = sums[owner].value_or(0) + *value;
        }
    });
    std::vector<std::pair<double, std::int64_t>> ranking;
    for (std::size_t owner = 0; owner < sums.size(); ++owner) {
        if (sums[owner]) {
            ranking.emplace_back(*sums[owner], owners.ids()[owner]);
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
    const CellsByStart cells = trendCells(*this, dailyRows(from, to, apps), buckets, series);
    const auto used = seriesInUse(cells, series.size());
    Trend trend;
    trend.legend.reserve(used.size());
    trend.points.reserve(cells.size());
    for (const std::size_t number : used) {
        trend.legend.push_back(series.legend(number, catalog_));
    }
    for (const auto& [start, ofBucket] : cells) {
        trend.points.push_back(
            {start, combinedStatus(buckets.statuses.at(start)), slices(ofBucket, used, trend.legend)});
    }
    return trend;
}

}  // namespace vantrell
