#include "figures/WindowSums.h"

namespace vantrell {

WindowSums::WindowSums(const SalesSnapshot& snapshot, const WindowSelections& windows,
                       const OfferGroups& groups)
    : snapshot_(snapshot) {
    forEachShared(windows, [&](SelectionSet containing, const std::vector<OfferSum>& lines) {
        auto& sums = sums_[containing];
        sums.resize(groups.ids().size());
        for (const OfferSum& sum : lines) {
            if (const std::uint32_t group = groups.ofOffer(sum.offerNumber); group != OfferGroups::none) {
                sums[group].add(sum);
            }
        }
    });
}

AggregateStats WindowSums::stats(FigureWindow window, std::uint32_t group) const {
    StatsAccumulator sum;
    for (const auto& [containing, sums] : sums_) {
        if ((containing >> static_cast<unsigned>(window) & 1U) != 0 && group < sums.size()) {
            sum.add(sums[group]);
        }
    }
    return sum.stats(snapshot_.currencies());
}

}  // namespace vantrell
