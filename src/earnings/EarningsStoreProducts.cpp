#include "earnings/EarningsStore.h"
#include "earnings/ItemGroups.h"
#include "earnings/LineValues.h"

#include <algorithm>
#include <utility>

// What sold in all time, by product and by country.

namespace vantrell {
namespace {

struct Name {
    std::string title;
    std::string subtitle;
};

Name nameOf(std::int64_t id, const Catalog& catalog) {
    if (const auto product = catalog.productByID().find(id); product != catalog.productByID().end()) {
        const ProductInfo& info = product->second;
        const std::string kind = info.isSubscription ? "Subscription" : "In-app purchase";
        const auto app = info.appID ? catalog.appByID().find(*info.appID) : catalog.appByID().end();
        return {info.title, app == catalog.appByID().end() ? kind : app->second.title + " · " + kind};
    }
    if (const auto app = catalog.appByID().find(id); app != catalog.appByID().end()) {
        return {app->second.title, "App"};
    }
    return {std::to_string(id), ""};
}

/// The sum of one product's lines, if it has any.
using ProductSum = std::optional<StatsAccumulator>;

}  // namespace

std::vector<ProductStat> EarningsStore::productStats(const AppFilter& apps) const {
    const ItemGroups products(salesRows_.items(), [](const SalesItem& item) {
        return isSold(item.kind) ? std::optional(item.appleID) : std::nullopt;
    });
    std::vector<ProductSum> sums(products.ids().size());
    allTimeRows(apps).forEach([&](const SalesRowRef& row) {
        const std::uint32_t product = products.ofItem(row.itemNumber());
        if (product != ItemGroups::none) {
            ProductSum& sum = sums[product];
            row.addTo(sum ? *sum : sum.emplace());
        }
    });
    std::vector<ProductStat> stats;
    for (std::size_t product = 0; product < sums.size(); ++product) {
        if (sums[product]) {
            const std::int64_t id = products.ids()[product];
            const AggregateStats sum = sums[product]->stats(salesRows_.currencies());
            auto [title, subtitle] = nameOf(id, catalog_);
            stats.push_back({id, std::move(title), std::move(subtitle), sum, sortValue(sum)});
        }
    }
    std::ranges::stable_sort(stats, std::ranges::greater(), &ProductStat::sortValue);
    return stats;
}

std::vector<CountryStat> EarningsStore::countryStats(const AppFilter& apps, std::size_t limit) const {
    LineValues values(salesRows_, converter_);
    std::vector<std::optional<Decimal>> sums(salesRows_.texts().size());
    allTimeRows(apps).forEach([&](const SalesRowRef& row) {
        if (!isSold(row.item().kind)) {
            return;
        }
        if (const auto amount = values.amount(row)) {
            auto& sum = sums[row.chunk().countries[row.index]];
            sum = sum ? *sum + *amount : *amount;
        }
    });
    std::map<std::string, Decimal> byCountry;
    for (std::uint32_t country = 0; country < sums.size(); ++country) {
        if (sums[country]) {
            const auto code = salesRows_.texts().text(country);
            byCountry[code.empty() ? "—" : std::string(code)] += *sums[country];
        }
    }
    std::vector<CountryStat> countries;
    countries.reserve(byCountry.size());
    for (const auto& [country, amount] : byCountry) {
        countries.push_back({country, amount});
    }
    std::ranges::stable_sort(countries, std::ranges::greater(), &CountryStat::amount);
    countries.resize(std::min(countries.size(), limit));
    return countries;
}

}  // namespace vantrell
