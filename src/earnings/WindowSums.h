#pragma once

#include "earnings/AggregateStats.h"
#include "earnings/ItemGroups.h"
#include "earnings/SalesSelection.h"
#include "earnings/StatsAccumulator.h"

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

/// The lines of several windows added up by group in one walk: a line that lies in several windows is added
/// once, to the sum for just these windows.
class WindowSums {
  public:
    /// Both are only read here.
    WindowSums(const SalesSnapshot& snapshot, const WindowSelections& windows, const ItemGroups& groups);

    /// Empty figures for `ItemGroups::none`.
    [[nodiscard]] AggregateStats stats(FigureWindow window, std::uint32_t group) const;

  private:
    /// The windows that a report lies in, a bit each.
    using WindowSet = unsigned;

    const SalesSnapshot& snapshot_;
    std::map<WindowSet, std::vector<StatsAccumulator>> sums_;  // by group
};

}  // namespace vantrell
