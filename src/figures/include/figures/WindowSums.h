#pragma once

#include "figures/AggregateStats.h"
#include "figures/OfferGroups.h"
#include "figures/SalesSelection.h"
#include "figures/StatsAccumulator.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace vantrell {

/// The windows that the tables show side by side.
enum class FigureWindow { last30, last365, ytd, allTime };
inline constexpr std::size_t figureWindowCount = 4;

/// Which lines count for each window, in the order of FigureWindow.
using WindowSelections = std::array<SalesSelection, figureWindowCount>;

/// The lines of several windows added up by group in one walk.
class WindowSums {
  public:
    /// Both are only read here.
    WindowSums(const SalesSnapshot& snapshot, const WindowSelections& windows, const OfferGroups& groups);

    /// Empty figures for `OfferGroups::none`.
    [[nodiscard]] AggregateStats stats(FigureWindow window, std::uint32_t group) const;

  private:
    const SalesSnapshot& snapshot_;
    std::map<SelectionSet, std::vector<StatsAccumulator>> sums_;  // by group
};

}  // namespace vantrell
