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

WindowSelections EarningsStore::windowRows() const {
    constexpr int month = 30;
    constexpr int year = 365;
    return {dailyRows(calendar_.dayKey(month), {}, {}), dailyRows(calendar_.dayKey(year), {}, {}),
            dailyRows(calendar_.currentYearLabel() + "-01-01", {}, {}), allTimeRows({})};
}

std::string EarningsStore::lastYearlyLabel() const {
    return yearlyOKLabels_.empty() ? std::string() : yearlyOKLabels_.back();
}

bool EarningsStore::passes(std::int64_t appleID, const std::set<std::int64_t>& apps) const {
    const auto owner = catalog_.owningApp(appleID);
    return owner && apps.contains(*owner);
}

ItemMask EarningsStore::itemMask(const AppFilter& apps) const {
    if (!apps) {
        return nullptr;
    }
    auto mask = std::make_shared<std::vector<bool>>();
    mask->reserve(salesRows_.items().size());
    for (const SalesItem& item : salesRows_.items()) {
        mask->push_back(passes(item.appleID, *apps));
    }
    return mask;
}

ReportStatus EarningsStore::dailyStatus(const std::string& key) const {
    const auto known = dailyStatuses_.find(key);
    return known == dailyStatuses_.end() ? ReportStatus::missing : known->second;
}

}  // namespace vantrell
