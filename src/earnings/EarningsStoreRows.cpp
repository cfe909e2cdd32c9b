#include "earnings/EarningsStore.h"

#include <memory>
#include <utility>

// Which rows count for which figure.

namespace vantrell {
SalesSelection EarningsStore::dailyRows(const std::optional<std::string>& from,
                                        const std::optional<std::string>& to, const AppFilter& apps) const {
    return {salesRows_, {salesRows_.span(ReportFrequency::daily, from, to)}, itemMask(apps)};
}

SalesSelection EarningsStore::allTimeRows(const AppFilter& apps) const {
    return {salesRows_,
            {salesRows_.dailySpanAfterYear(lastYearlyLabel()),
             salesRows_.span(ReportFrequency::yearly, std::nullopt, std::nullopt)},
            itemMask(apps)};
}

SalesSelection EarningsStore::reportRows(ReportFrequency frequency, const std::string& reportDate,
                                         const AppFilter& apps) const {
    return {salesRows_, {salesRows_.span(frequency, reportDate, reportDate)}, itemMask(apps)};
}

std::string EarningsStore::lastYearlyLabel() const {
    return yearlyOKLabels_.empty() ? std::string() : yearlyOKLabels_.back();
}

ItemMask EarningsStore::itemMask(const AppFilter& apps) const {
    if (!apps) {
        return nullptr;
    }
    auto mask = std::make_shared<std::vector<bool>>();
    mask->reserve(salesRows_.items().size());
    for (const SalesItem& item : salesRows_.items()) {
        const auto owner = catalog_.owningApp(item.appleID);
        mask->push_back(owner && apps->contains(*owner));
    }
    return mask;
}

ReportStatus EarningsStore::dailyStatus(const std::string& key) const {
    const auto known = dailyStatuses_.find(key);
    return known == dailyStatuses_.end() ? ReportStatus::missing : known->second;
}

}  // namespace vantrell
