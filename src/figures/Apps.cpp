#include "figures/Apps.h"

#include "ChartSums.h"
#include "WindowSums.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

/// The year of an all-time report.
std::string_view yearCounted(const SalesChunk& report) {
    return report.frequency == ReportFrequency::yearly ? report.reportDate : yearOf(report.reportDate);
}

/// The apps that sales and refunds belong to.
OfferGroups ownersOfSold(const Snapshot& snapshot) {
    return {snapshot.salesRows.offers(), [&snapshot](const SalesOffer& offer) {
                return isSold(offer.kind) ? snapshot.catalog->owningApp(offer.stored.appleID) : std::nullopt;
            }};
}

}  // namespace

std::vector<AppTableEntry> appTable(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                                    const ReportCalendar& calendar) {
    const Catalog& catalog = *snapshot->catalog;
    const OfferGroups owners(snapshot->salesRows.offers(), [&catalog](const SalesOffer& offer) {
        return catalog.owningApp(offer.stored.appleID);
    });
    const WindowSums sums(snapshot, calendar, owners);
    std::vector<AppTableEntry> table;
    table.reserve(catalog.apps().size());
    for (const AppInfo& app : catalog.apps()) {
        AppTableEntry& entry = table.emplace_back();
        entry.app = app;
        sums.fill(entry, owners.number(app.id));
        entry.sortValue = sortValue(entry.allTime, converter);
    }
    std::ranges::stable_sort(table, std::ranges::greater(), &AppTableEntry::sortValue);
    return table;
}

YearMatrix yearMatrix(const SharedSnapshot& snapshot, const CurrencyConverter& converter) {
    const SalesRows& rows = snapshot->salesRows;
    const OfferGroups owners = ownersOfSold(*snapshot);
    ChartSums sums(owners, rows.currencies(), converter);
    std::set<std::string_view> years;
    YearMatrix matrix;
    allTimeRows(snapshot, {})
        .forEachSection(
            [&rows](std::size_t chunk) { return std::optional(yearCounted(*rows.chunks()[chunk])); },
            [&](std::string_view year, const std::vector<OfferSum>& lines) {
                const auto amounts = sums.amounts(lines);
                for (std::size_t owner = 0; owner < amounts.size(); ++owner) {
                    if (const auto& amount = amounts[owner]) {
                        matrix.byApp[owners.ids()[owner]][std::string(year)] += amount->total();
                        if (!amount->isZero()) {
                            years.insert(year);
                        }
                    }
                }
            });
    matrix.years.assign(years.begin(), years.end());
    return matrix;
}

std::vector<std::int64_t> rankedApps(const SharedSnapshot& snapshot, const CurrencyConverter& converter) {
    const OfferGroups owners = ownersOfSold(*snapshot);
    ChartSums sums(owners, snapshot->salesRows.currencies(), converter);
    const auto amounts = sums.amounts(allTimeRows(snapshot, {}).sums());
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

}  // namespace vantrell
