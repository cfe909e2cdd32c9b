#pragma once

#include "OfferGroups.h"
#include "StatsAccumulator.h"
#include "calendar/ReportCalendar.h"
#include "currency/CurrencyConverter.h"
#include "figures/AggregateStats.h"
#include "figures/SalesSelection.h"

#include <cstdint>
#include <map>
#include <vector>

namespace vantrell {

/// What an all-time list is sorted by: the amount in the display currency; what has no rate counts for
/// nothing.
[[nodiscard]] inline double sortValue(const AggregateStats& stats, const CurrencyConverter& converter) {
    return converter.total(stats.proceedsByCurrency).amount.toDouble();
}

/// The windows that the tables show side by side.
enum class FigureWindow { last30, last365, ytd, allTime };

/// The lines of the windows added up by group in one walk: the last 30 and 365 days and the year to date,
/// each with today, and all time.
class WindowSums {
  public:
    /// The groups are only read here.
    WindowSums(const SharedSnapshot& snapshot, const ReportCalendar& calendar, const OfferGroups& groups);

    /// Empty figures for `OfferGroups::none`.
    [[nodiscard]] AggregateStats stats(FigureWindow window, std::uint32_t group) const;

    /// Fills the windows of one entry of a table.
    template <typename Entry>
    void fill(Entry& entry, std::uint32_t group) const {
        entry.last30 = stats(FigureWindow::last30, group);
        entry.last365 = stats(FigureWindow::last365, group);
        entry.ytd = stats(FigureWindow::ytd, group);
        entry.allTime = stats(FigureWindow::allTime, group);
    }

  private:
    SharedSnapshot snapshot_;
    std::map<SelectionSet, std::vector<StatsAccumulator>> sums_;  // by group
};

}  // namespace vantrell
