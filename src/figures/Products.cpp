#include "figures/Products.h"

#include "StatsAccumulator.h"
#include "WindowSums.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vantrell {
namespace {

struct Name {
    std::string title;
    ProductForm form;
    std::optional<std::string> appTitle;
};

Name nameOf(std::int64_t id, const Catalog& catalog) {
    if (const auto product = catalog.productByID().find(id); product != catalog.productByID().end()) {
        const ProductInfo& info = product->second;
        const auto app = info.appID ? catalog.appByID().find(*info.appID) : catalog.appByID().end();
        return {info.title, info.isSubscription ? ProductForm::subscription : ProductForm::inAppPurchase,
                app == catalog.appByID().end() ? std::nullopt : std::optional(app->second.title)};
    }
    if (const auto app = catalog.appByID().find(id); app != catalog.appByID().end()) {
        return {app->second.title, ProductForm::app, std::nullopt};
    }
    return {std::to_string(id), ProductForm::unknown, std::nullopt};
}

/// The sum of one product's lines, if it has any.
using ProductSum = std::optional<StatsAccumulator>;

/// What the lines of one country and currency sum up to. Lines worth nothing make a country appear as well.
struct CountryMoney {
    bool isSeen = false;
    ExactSum sum;
};
using CountrySums = std::map<TextID, std::vector<CountryMoney>>;

/// What could be converted of one country's money; absent if nothing could.
std::optional<Decimal> converted(const std::vector<CountryMoney>& byCurrency,
                                 const std::vector<std::string_view>& currencies,
                                 const CurrencyConverter& converter) {
    std::optional<Decimal> total;
    for (std::uint32_t currency = 0; currency < byCurrency.size(); ++currency) {
        const auto conversion =
            byCurrency[currency].isSeen ? converter.conversion(currencies[currency]) : std::nullopt;
        if (conversion) {
            total = total.value_or(Decimal()) + (*conversion)(byCurrency[currency].sum.total());
        }
    }
    return total;
}

/// The product whose figures an offer's lines are part of: its own, where the catalog knows it as an
/// app or as a product of an app. Updates and redownloads are part of none.
std::optional<std::int64_t> productOf(const SalesOffer& offer, const Catalog& catalog) {
    const std::int64_t id = offer.stored.appleID;
    const auto& products = catalog.productByID();
    if (offer.kind == ProductKind::app) {
        return catalog.appByID().contains(id) ? std::optional(id) : std::nullopt;
    }
    const auto product = products.find(id);
    const bool isOwned =
        offer.kind == ProductKind::iap && product != products.end() && product->second.appID.has_value();
    return isOwned ? std::optional(id) : std::nullopt;
}

ProductWindowStat emptyProduct(std::int64_t id, const Catalog& catalog) {
    ProductWindowStat entry;
    entry.productID = id;
    entry.isAppPurchases = catalog.appByID().contains(id);
    if (entry.isAppPurchases) {
        entry.appID = id;
    } else {
        const ProductInfo& product = catalog.productByID().at(id);
        entry.appID = *product.appID;
        entry.title = product.title;
    }
    return entry;
}

bool standsBefore(const ProductWindowStat& left, const ProductWindowStat& right) {
    return std::pair(left.isAppPurchases, left.sortValue) > std::pair(right.isAppPurchases, right.sortValue);
}

}  // namespace

ProductWindows productWindows(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                              const ReportCalendar& calendar) {
    const Catalog& catalog = *snapshot->catalog;
    const OfferGroups products(snapshot->salesRows.offers(),
                               [&catalog](const SalesOffer& offer) { return productOf(offer, catalog); });
    const WindowSums sums(snapshot, calendar, products);
    ProductWindows windows;
    for (std::uint32_t group = 0; group < products.ids().size(); ++group) {
        ProductWindowStat entry = emptyProduct(products.ids()[group], catalog);
        sums.fill(entry, group);
        // A free app sells nothing of its own.
        if (!entry.isAppPurchases || !entry.allTime.proceedsByCurrency.empty()) {
            entry.sortValue = sortValue(entry.allTime, converter);
            windows[entry.appID].push_back(std::move(entry));
        }
    }
    for (auto& [app, entries] : windows) {
        std::ranges::stable_sort(entries, standsBefore);
    }
    return windows;
}

std::vector<ProductStat> productStats(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                                      const AppFilter& apps) {
    const SalesRows& rows = snapshot->salesRows;
    const OfferGroups products(rows.offers(), [](const SalesOffer& offer) {
        return isSold(offer.kind) ? std::optional(offer.stored.appleID) : std::nullopt;
    });
    std::vector<ProductSum> sums(products.ids().size());
    for (const OfferSum& lines : allTimeRows(snapshot, apps).sums()) {
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
            const AggregateStats sum = sums[product]->stats(rows.currencies());
            auto [title, form, appTitle] = nameOf(id, *snapshot->catalog);
            stats.push_back(
                {id, std::move(title), form, std::move(appTitle), sum, sortValue(sum, converter)});
        }
    }
    std::ranges::stable_sort(stats, std::ranges::greater(), &ProductStat::sortValue);
    return stats;
}

std::vector<CountryStat> countryStats(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                                      const AppFilter& apps, std::size_t limit) {
    const SalesRows& rows = snapshot->salesRows;
    // Exact sums by country and currency, each converted once: nearer to the truth than rounding every line
    // at its last digit, and faster.
    CountrySums sums;
    std::vector<std::vector<CountryMoney>*> byText;
    allTimeRows(snapshot, apps).forEach([&](const SalesChunk& lines, std::size_t row) {
        const SalesOffer& offer = rows.offers()[lines.offers[row]];
        if (!isSold(offer.kind)) {
            return;
        }
        const TextID country = lines.countries[row];
        if (byText.size() <= country) {
            byText.resize(std::size_t{country} + 1);
        }
        if (byText[country] == nullptr) {
            byText[country] = &sums[country];
            byText[country]->resize(rows.currencies().size());
        }
        CountryMoney& money = (*byText[country])[offer.currency];
        money.isSeen = true;
        money.sum.add(lines.unitsOf(row), offer.proceeds);
    });
    std::map<std::string, Decimal> byCountry;
    for (const auto& [country, byCurrency] : sums) {
        if (const auto amount = converted(byCurrency, rows.currencies(), converter)) {
            const auto code = rows.texts().text(country);
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
