#include "earnings/EarningsStore.h"
#include "earnings/ItemGroups.h"
#include "earnings/LineValues.h"
#include "earnings/WindowSums.h"

#include <algorithm>
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

/// The product whose figures an item's lines are part of: the item itself, where the catalog knows it as an
/// app or as a product of an app. Updates and redownloads are part of none.
OptionalID productOf(const SalesItem& item, const Catalog& catalog) {
    const auto& products = catalog.productByID();
    if (item.kind == ProductKind::app) {
        return catalog.appByID().contains(item.appleID) ? OptionalID(item.appleID) : std::nullopt;
    }
    const auto product = products.find(item.appleID);
    const bool isOwned =
        item.kind == ProductKind::iap && product != products.end() && product->second.appID.has_value();
    return isOwned ? OptionalID(item.appleID) : std::nullopt;
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

/// Adds to the cells of a matrix year by year, and looks each cell up once a year.
class YearCells {
  public:
    YearCells(YearMatrix& matrix, const ItemGroups& apps)
        : matrix_(matrix), apps_(apps), cells_(apps.ids().size()) {}

    void inYear(std::string_view year) {
        if (year != year_) {
            year_ = year;
            std::ranges::fill(cells_, nullptr);
        }
    }

    void add(std::uint32_t app, double value) {
        double*& cell = cells_[app];
        if (cell == nullptr) {
            cell = &matrix_.byApp[apps_.ids()[app]][std::string(year_)];
        }
        *cell += value;
        if (value != 0) {
            note(year_);
        }
    }

  private:
    void note(std::string_view year) {
        const auto place = std::ranges::lower_bound(matrix_.years, year);
        if (place == matrix_.years.end() || *place != year) {
            matrix_.years.emplace(place, year);
        }
    }

    YearMatrix& matrix_;
    const ItemGroups& apps_;
    std::string_view year_;
    std::vector<double*> cells_;  // by app, in the current year
};

bool standsBefore(const ProductWindowStat& left, const ProductWindowStat& right) {
    return std::pair(left.isAppPurchases, left.sortValue) > std::pair(right.isAppPurchases, right.sortValue);
}

}  // namespace

double EarningsStore::sortValue(const AggregateStats& stats) const {
    return converter_.total(stats.proceedsByCurrency).amount.toDouble();
}

std::vector<AppTableEntry> EarningsStore::appTable() const {
    const ItemGroups owners(salesRows_.items(),
                            [this](const SalesItem& item) { return catalog_.owningApp(item.appleID); });
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
    const ItemGroups products(salesRows_.items(),
                              [this](const SalesItem& item) { return productOf(item, catalog_); });
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
    const ItemGroups owners(salesRows_.items(), [this](const SalesItem& item) {
        return isSold(item.kind) ? catalog_.owningApp(item.appleID) : std::nullopt;
    });
    LineValues values(salesRows_, converter_);
    YearMatrix matrix;
    YearCells cells(matrix, owners);
    allTimeRows({}).forEach([&](const SalesChunk& report) { cells.inYear(yearCounted(report)); },
                            [&](const SalesRowRef& row) {
                                const std::uint32_t owner = owners.ofItem(row.itemNumber());
                                const auto value =
                                    owner == ItemGroups::none ? std::nullopt : values.value(row);
                                if (value) {
                                    cells.add(owner, *value);
                                }
                            });
    return matrix;
}

}  // namespace vantrell
