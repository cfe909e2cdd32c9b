#pragma once

#include "base/Decimal.h"
#include "calendar/ReportCalendar.h"
#include "currency/CurrencyConverter.h"
#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrell {

/// One product of an app, or the app's own paid downloads.
struct ProductWindowStat {
    std::int64_t productID = 0;
    std::int64_t appID = 0;
    std::string title;            ///< empty for the paid downloads
    bool isAppPurchases = false;  ///< paid downloads of the app itself
    AggregateStats last30;        ///< windows and sort value as those of an app
    AggregateStats last365;
    AggregateStats ytd;
    AggregateStats allTime;
    double sortValue = 0;
    bool operator==(const ProductWindowStat&) const = default;
};

using ProductWindows = std::map<std::int64_t, std::vector<ProductWindowStat>>;  ///< by app

/// What a product is; unknown for one that the catalog doesn't hold.
enum class ProductForm { unknown, app, inAppPurchase, subscription };

/// What one app or product sold in all time.
struct ProductStat {
    std::int64_t productID = 0;  ///< Apple identifier; 0 for lines that have none
    std::string title;
    ProductForm form = ProductForm::unknown;
    std::optional<std::string> appTitle;  ///< of the app that it is a product of
    AggregateStats stats;
    double sortValue = 0;  ///< in the display currency; what has no rate counts for nothing
    bool operator==(const ProductStat&) const = default;
};

/// What customers of one country brought in all time.
struct CountryStat {
    std::string country;  ///< the code of the report, or "—" for lines without one
    Decimal amount;       ///< in the display currency; what has no rate is left out
    bool operator==(const CountryStat&) const = default;
};

// The largest stands first; equals stay in the order of their identifiers or codes.

/// The products of each app, its own paid downloads first. Products of no known app are left out.
[[nodiscard]] ProductWindows productWindows(const SharedSnapshot& snapshot,
                                            const CurrencyConverter& converter,
                                            const ReportCalendar& calendar);
/// The apps and products that were sold or refunded in all time.
[[nodiscard]] std::vector<ProductStat> productStats(const SharedSnapshot& snapshot,
                                                    const CurrencyConverter& converter,
                                                    const AppFilter& apps);
/// The countries that brought in most in all time, at most `limit`.
[[nodiscard]] std::vector<CountryStat> countryStats(const SharedSnapshot& snapshot,
                                                    const CurrencyConverter& converter, const AppFilter& apps,
                                                    std::size_t limit);

}  // namespace vantrell
