#pragma once

#include "calendar/ReportCalendar.h"
#include "currency/CurrencyConverter.h"
#include "figures/AggregateStats.h"
#include "figures/Snapshot.h"

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

/// What each app earned in each year, in the display currency.
struct YearMatrix {
    std::vector<std::string> years;  ///< those in which some line was worth something, ascending
    std::map<std::int64_t, std::map<std::string, double, std::less<>>> byApp;
    bool operator==(const YearMatrix&) const = default;
};

/// Every app of the catalog, also those without figures. The largest stands first; equals stay in the order
/// of the catalog.
[[nodiscard]] std::vector<AppTableEntry> appTable(const SharedSnapshot& snapshot,
                                                  const CurrencyConverter& converter,
                                                  const ReportCalendar& calendar);
/// What each app earned in each year, by the frequencies of all time.
[[nodiscard]] YearMatrix yearMatrix(const SharedSnapshot& snapshot, const CurrencyConverter& converter);
/// The apps by what they earned in all time, largest first and equals by identifier.
[[nodiscard]] std::vector<std::int64_t> rankedApps(const SharedSnapshot& snapshot,
                                                   const CurrencyConverter& converter);

}  // namespace vantrell
