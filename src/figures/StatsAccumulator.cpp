#include "StatsAccumulator.h"

#include <algorithm>

namespace vantrell {

void StatsAccumulator::add(const StatsAccumulator& other) {
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        units_[kind][0] = countSum(units_[kind][0], other.units_[kind][0]);
        units_[kind][1] = countSum(units_[kind][1], other.units_[kind][1]);
    }
    sums_.resize(std::max(sums_.size(), other.sums_.size()));
    for (std::size_t currency = 0; currency < other.sums_.size(); ++currency) {
        sums_[currency].add(other.sums_[currency]);
    }
}

AggregateStats StatsAccumulator::stats(const std::vector<std::string_view>& currencies) const {
    AggregateStats stats;
    stats.appUnits = sold(ProductKind::app);
    stats.iapUnits = sold(ProductKind::iap);
    stats.updateUnits = sold(ProductKind::update);
    stats.redownloadUnits = sold(ProductKind::redownload);
    stats.refundedUnits = countNegated(countSum(refunded(ProductKind::app), refunded(ProductKind::iap)));
    for (std::uint32_t currency = 0; currency < sums_.size(); ++currency) {
        if (sums_[currency].isTouched()) {
            stats.proceedsByCurrency.emplace(currencies[currency], sums_[currency].total());
        }
    }
    return stats;
}

}  // namespace vantrell
