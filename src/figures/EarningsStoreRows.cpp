#include "figures/EarningsStore.h"

#include <memory>
#include <utility>

// Which rows count for which figure.

namespace vantrell {
SalesSelection EarningsStore::dailyRows(const std::optional<std::string>& from,
                                        const std::optional<std::string>& to, const AppFilter& apps) const {
    return {salesRows_, {salesRows_.span(ReportFrequency::daily, from, to)}, offerMask(apps)};
}

SalesSelection EarningsStore::allTimeRows(const AppFilter& apps) const {
    return {salesRows_,
            {salesRows_.dailySpanAfterYear(lastYearlyLabel()),
             salesRows_.span(ReportFrequency::yearly, std::nullopt, std::nullopt)},
            offerMask(apps)};
}

SalesSelection EarningsStore::reportRows(ReportFrequency frequency, const std::string& reportDate,
                                         const AppFilter& apps) const {
    return {salesRows_, {salesRows_.span(frequency, reportDate, reportDate)}, offerMask(apps)};
}

WindowSelections EarningsStore::windowRows() const {
    constexpr int month = 30;
    constexpr int year = 365;
    return {dailyRows(calendar_.dayKey(month), {}, {}), dailyRows(calendar_.dayKey(year), {}, {}),
            dailyRows(calendar_.currentYearLabel() + "-01-01", {}, {}), allTimeRows({})};
}

OfferGroups EarningsStore::ownersOfSold() const {
    return {salesRows_.offers(), [this](const SalesOffer& offer) {
                return isSold(offer.kind) ? catalog_.owningApp(offer.appleID) : std::nullopt;
            }};
}

std::string EarningsStore::lastYearlyLabel() const {
    return yearlyOKLabels_.empty() ? std::string() : yearlyOKLabels_.back();
}

bool EarningsStore::passes(std::int64_t appleID, const std::set<std::int64_t>& apps) const {
    const auto owner = catalog_.owningApp(appleID);
    return owner && apps.contains(*owner);
}

OfferMask EarningsStore::offerMask(const AppFilter& apps) const {
    if (!apps) {
        return nullptr;
    }
    auto mask = std::make_shared<std::vector<bool>>();
    mask->reserve(salesRows_.offers().size());
    for (const SalesOffer& offer : salesRows_.offers()) {
        mask->push_back(passes(offer.appleID, *apps));
    }
    return mask;
}

ReportStatus EarningsStore::dailyStatus(const std::string& key) const {
    const auto known = dailyStatuses_.find(key);
    return known == dailyStatuses_.end() ? ReportStatus::missing : known->second;
}

}  // namespace vantrell
