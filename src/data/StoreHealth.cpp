#include "data/StoreHealth.h"

#include <algorithm>
#include <utility>

namespace vantrell {

const std::string& StoreHealth::damage() const {
    static const std::string none;
    return damage_ ? *damage_ : none;
}

void StoreHealth::setUnsaved(std::optional<StoreError> error) {
    if (unsaved_ == error) {
        return;
    }
    unsaved_ = std::move(error);
    Q_EMIT changed();
}

void StoreHealth::addDamage(const std::string& words) {
    if (damage_ && (words.empty() || !damage_->empty())) {
        return;
    }
    damage_ = words;
    Q_EMIT changed();
}

void StoreHealth::addDamagedReport(ReportName report) {
    if (std::ranges::find(damagedReports_, report) != damagedReports_.end()) {
        return;
    }
    damagedReports_.push_back(std::move(report));
    if (!damage_) {
        damage_.emplace();
    }
    Q_EMIT changed();
}

}  // namespace vantrell
