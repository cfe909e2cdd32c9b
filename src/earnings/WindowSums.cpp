#include "earnings/WindowSums.h"

namespace vantrell {

WindowSums::WindowSums(const SalesSnapshot& snapshot, const WindowSelections& windows,
                       const ItemGroups& groups)
    : snapshot_(snapshot) {
    for (std::size_t chunk = 0; chunk < snapshot.chunks().size(); ++chunk) {
        WindowSet inWindows = 0;
        for (std::size_t window = 0; window < windows.size(); ++window) {
            inWindows |= windows[window].containsReport(chunk) ? 1U << window : 0U;
        }
        if (inWindows == 0) {
            continue;
        }
        auto& sums = sums_[inWindows];
        sums.resize(groups.ids().size());
        const SalesChunk& lines = *snapshot.chunks()[chunk];
        for (std::size_t row = 0; row < lines.size(); ++row) {
            const std::uint32_t group = groups.ofItem(lines.items[row]);
            if (group != ItemGroups::none) {
                SalesRowRef{&snapshot, chunk, row}.addTo(sums[group]);
            }
        }
    }
}

AggregateStats WindowSums::stats(FigureWindow window, std::uint32_t group) const {
    StatsAccumulator sum;
    for (const auto& [windows, sums] : sums_) {
        if ((windows >> static_cast<unsigned>(window) & 1U) != 0 && group < sums.size()) {
            sum.add(sums[group]);
        }
    }
    return sum.stats(snapshot_.currencies());
}

}  // namespace vantrell
