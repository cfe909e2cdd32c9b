#include "WindowSums.h"

#include <array>

namespace vantrell {
namespace {

constexpr int daysOfMonth = 30;
constexpr int daysOfYear = 365;

}  // namespace

WindowSums::WindowSums(const SharedSnapshot& snapshot, const ReportCalendar& calendar,
                       const OfferGroups& groups)
    : snapshot_(snapshot) {
    // In the order of FigureWindow.
    const std::array windows{dailyRows(snapshot, calendar.dayKey(daysOfMonth), {}, {}),
                             dailyRows(snapshot, calendar.dayKey(daysOfYear), {}, {}),
                             dailyRows(snapshot, calendar.currentYearLabel() + "-01-01", {}, {}),
                             allTimeRows(snapshot, {})};
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
    return sum.stats(snapshot_->salesRows.currencies());
}

}  // namespace vantrell
