#include "figures/EarningsStore.h"
#include "figures/OfferGroups.h"

#include <algorithm>
#include <map>
#include <optional>
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

/// What the lines of one country and currency sum up to. Lines worth nothing make a country appear as well.
struct CountryMoney {
    bool isSeen = false;
    ExactSum sum;
};
using CountrySums = std::map<std::uint32_t, std::vector<CountryMoney>>;

/// What could be converted of one country's money; absent if nothing could.
std::optional<Decimal> converted(const std::vector<CountryMoney>& byCurrency, const TextPool& currencies,
                                 const CurrencyConverter& converter) {
    std::optional<Decimal> total;
    for (std::uint32_t currency = 0; currency < byCurrency.size(); ++currency) {
        const auto conversion =
            byCurrency[currency].isSeen ? converter.conversion(currencies.text(currency)) : std::nullopt;
        if (conversion) {
            total = total.value_or(Decimal()) + (*conversion)(byCurrency[currency].sum.total());
        }
    }
    return total;
}

}  // namespace

std::vector<ProductStat> EarningsStore::productStats(const AppFilter& apps) const {
    const OfferGroups products(salesRows_.offers(), [](const SalesOffer& offer) {
        return isSold(offer.kind) ? std::optional(offer.appleID) : std::nullopt;
    });
    std::vector<ProductSum> sums(products.ids().size());
    for (const OfferSum& lines : allTimeRows(apps).sums()) {
        const std::uint32_t product = products.ofOffer(lines.offerNumber);
        if (product != OfferGroups::none) {
            ProductSum& sum = sums[product];
            (sum ? *sum : sum.emplace()).add(lines);
        }
    }
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
    // Exact sums by country and currency, each converted once: nearer to the truth than rounding every line
    // at its last digit, and faster.
    CountrySums sums;
    std::vector<std::vector<CountryMoney>*> byText(salesRows_.texts().size());
    allTimeRows(apps).forEach([&](const SalesChunk& lines, std::size_t row) {
        const SalesOffer& offer = salesRows_.offers()[lines.offers[row]];
        if (!isSold(offer.kind)) {
            return;
        }
        const std::uint32_t country = lines.countries[row];
        if (byText[country] == nullptr) {
            byText[country] = &sums[country];
            byText[country]->resize(salesRows_.currencies().size());
        }
        CountryMoney& money = (*byText[country])[offer.currency];
        money.isSeen = true;
        money.sum.add(lines.unitsOf(row), offer.proceeds);
    });
    std::map<std::string, Decimal> byCountry;
    for (const auto& [country, byCurrency] : sums) {
        if (const auto amount = converted(byCurrency, salesRows_.currencies(), converter_)) {
            const auto code = salesRows_.texts().text(country);
            byCountry[code.empty() ? "—" : std::string(code)] += *amount;
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
