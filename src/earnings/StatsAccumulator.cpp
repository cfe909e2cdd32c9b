#include "earnings/StatsAccumulator.h"

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

AggregateStats StatsAccumulator::stats(const TextPool& texts) const {
    AggregateStats stats = counts_;
    for (std::uint32_t currency = 0; currency < sums_.size(); ++currency) {
        if (sums_[currency].isTouched()) {
            stats.proceedsByCurrency.emplace(texts.text(currency), sums_[currency].total());
        }
    }
    return stats;
}

}  // namespace vantrell
