#include "ChartSums.h"
#include "figures/EarningsStore.h"
#include "figures/OfferGroups.h"
#include "figures/WindowSums.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

// Figures by app: the windows side by side, and the years.

namespace vantrell {
namespace {

using OptionalID = std::optional<std::int64_t>;

template <typename Entry>
void fillWindows(Entry& entry, const WindowSums& sums, std::uint32_t group) {
    entry.last30 = sums.stats(FigureWindow::last30, group);
    entry.last365 = sums.stats(FigureWindow::last365, group);
    entry.ytd = sums.stats(FigureWindow::ytd, group);
    entry.allTime = sums.stats(FigureWindow::allTime, group);
}

/// The product whose figures an offer's lines are part of: its own, where the catalog knows it as an
/// app or as a product of an app. Updates and redownloads are part of none.
OptionalID productOf(const SalesOffer& offer, const Catalog& catalog) {
    const auto& products = catalog.productByID();
    if (offer.kind == ProductKind::app) {
        return catalog.appByID().contains(offer.appleID) ? OptionalID(offer.appleID) : std::nullopt;
    }
    const auto product = products.find(offer.appleID);
    const bool isOwned =
        offer.kind == ProductKind::iap && product != products.end() && product->second.appID.has_value();
    return isOwned ? OptionalID(offer.appleID) : std::nullopt;
}

ProductWindowStat emptyProduct(std::int64_t id, const Catalog& catalog) {
    ProductWindowStat entry;
    entry.productID = id;
    entry.isAppPurchases = catalog.appByID().contains(id);
    if (entry.isAppPurchases) {
        entry.appID = id;
        entry.title = "Purchases";
    } else {
        const ProductInfo& product = catalog.productByID().at(id);
        entry.appID = *product.appID;
        entry.title = product.title;
    }
    return entry;
}

/// The year of an all-time report.
std::string_view yearCounted(const SalesChunk& report) {
    return report.frequency == ReportFrequency::yearly ? report.reportDate : yearOf(report.reportDate);
}

bool standsBefore(const ProductWindowStat& left, const ProductWindowStat& right) {
    return std::pair(left.isAppPurchases, left.sortValue) > std::pair(right.isAppPurchases, right.sortValue);
}

}  // namespace

double EarningsStore::sortValue(const AggregateStats& stats) const {
    return converter_.total(stats.proceedsByCurrency).amount.toDouble();
}

std::vector<AppTableEntry> EarningsStore::appTable() const {
    const OfferGroups owners(salesRows_.offers(),
                             [this](const SalesOffer& offer) { return catalog_.owningApp(offer.appleID); });
    const WindowSums sums(salesRows_, windowRows(), owners);
    std::vector<AppTableEntry> table;
    table.reserve(catalog_.apps().size());
    for (const AppInfo& app : catalog_.apps()) {
        AppTableEntry& entry = table.emplace_back();
        entry.app = app;
        fillWindows(entry, sums, owners.number(app.id));
        entry.sortValue = sortValue(entry.allTime);
    }
    std::ranges::stable_sort(table, std::ranges::greater(), &AppTableEntry::sortValue);
    return table;
}

ProductWindows EarningsStore::productWindows() const {
    const OfferGroups products(salesRows_.offers(),
                               [this](const SalesOffer& offer) { return productOf(offer, catalog_); });
    const WindowSums sums(salesRows_, windowRows(), products);
    ProductWindows windows;
    for (std::uint32_t group = 0; group < products.ids().size(); ++group) {
        ProductWindowStat entry = emptyProduct(products.ids()[group], catalog_);
        fillWindows(entry, sums, group);
        // A free app sells nothing of its own.
        if (!entry.isAppPurchases || !entry.allTime.proceedsByCurrency.empty()) {
            entry.sortValue = sortValue(entry.allTime);
            windows[entry.appID].push_back(std::move(entry));
        }
    }
    for (auto& [app, entries] : windows) {
        std::ranges::stable_sort(entries, standsBefore);
    }
    return windows;
}

YearMatrix EarningsStore::yearMatrix() const {
    const OfferGroups owners = ownersOfSold();
    ChartSums sums(owners, salesRows_.currencies(), converter_);
    std::set<std::string_view> years;
    YearMatrix matrix;
    allTimeRows({}).forEachSection(
        [this](std::size_t chunk) { return std::optional(yearCounted(*salesRows_.chunks()[chunk])); },
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

}  // namespace vantrell
