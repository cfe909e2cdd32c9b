#pragma once

#include "figures/AggregateStats.h"
#include "figures/Catalog.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vantrell {

/// One app with its products. Its windows have no end: a line of today counts.
struct AppTableEntry {
    AppInfo app;
    AggregateStats last30;   ///< days
    AggregateStats last365;  ///< days
    AggregateStats ytd;      ///< since the first of January
    AggregateStats allTime;
    double sortValue = 0;  ///< of all time, in the display currency; what has no rate counts for nothing
    bool operator==(const AppTableEntry&) const = default;
};

/// One product of an app, or the app's own paid downloads.
struct ProductWindowStat {
    std::int64_t productID = 0;
    std::int64_t appID = 0;
    std::string title;
    bool isAppPurchases = false;  ///< paid downloads of the app itself
    AggregateStats last30;        ///< windows and sort value as above
    AggregateStats last365;
    AggregateStats ytd;
    AggregateStats allTime;
    double sortValue = 0;
    bool operator==(const ProductWindowStat&) const = default;
};

using ProductWindows = std::map<std::int64_t, std::vector<ProductWindowStat>>;  ///< by app

/// What each app earned in each year, in the display currency.
struct YearMatrix {
    std::vector<std::string> years;  ///< those in which some line was worth something, ascending
    std::map<std::int64_t, std::map<std::string, double, std::less<>>> byApp;
    bool operator==(const YearMatrix&) const = default;
};

}  // namespace vantrell
