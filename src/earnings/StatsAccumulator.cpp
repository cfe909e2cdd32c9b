#include "earnings/StatsAccumulator.h"

#include <algorithm>

namespace vantrell {

void StatsAccumulator::addUnits(ProductKind kind, std::int64_t units) {
    switch (kind) {
        case ProductKind::app:
            (units < 0 ? counts_.refundedUnits : counts_.appUnits) += units < 0 ? -units : units;
            break;
        case ProductKind::iap:
            (units < 0 ? counts_.refundedUnits : counts_.iapUnits) += units < 0 ? -units : units;
            break;
        case ProductKind::update:
            counts_.updateUnits += units < 0 ? 0 : units;
            break;
        case ProductKind::redownload:
            counts_.redownloadUnits += units < 0 ? 0 : units;
            break;
        case ProductKind::other:
            break;
    }
}

void StatsAccumulator::add(const StatsAccumulator& other) {
    counts_.appUnits += other.counts_.appUnits;
    counts_.iapUnits += other.counts_.iapUnits;
    counts_.updateUnits += other.counts_.updateUnits;
    counts_.redownloadUnits += other.counts_.redownloadUnits;
    counts_.refundedUnits += other.counts_.refundedUnits;
    sums_.resize(std::max(sums_.size(), other.sums_.size()));
    for (std::size_t currency = 0; currency < other.sums_.size(); ++currency) {
        sums_[currency].add(other.sums_[currency]);
    }
}

AggregateStats StatsAccumulator::stats(const TextPool& currencies) const {
    AggregateStats stats = counts_;
    for (std::uint32_t currency = 0; currency < sums_.size(); ++currency) {
        if (sums_[currency].isTouched()) {
            stats.proceedsByCurrency.emplace(currencies.text(currency), sums_[currency].total());
        }
    }
    return stats;
}

}  // namespace vantrell
