#include "ChartSums.h"

#include <algorithm>
#include <limits>

namespace vantrell {
namespace {

double finite(long double value) {
    constexpr long double largest = std::numeric_limits<double>::max();
    return static_cast<double>(std::clamp(value, -largest, largest));
}

}  // namespace

ChartSums::ChartSums(const OfferGroups& groups, const std::vector<std::string_view>& currencies,
                     const CurrencyConverter& converter)
    : groups_(groups), sums_(groups.ids().size() * currencies.size()) {
    rates_.reserve(currencies.size());
    for (const std::string_view currency : currencies) {
        const auto rate = converter.convert(1, currency);
        rates_.push_back(rate ? std::optional(rate->toLongDouble()) : std::nullopt);
    }
}

std::vector<std::optional<SignedAmounts>> ChartSums::amounts(const std::vector<OfferSum>& lines) {
    for (const OfferSum& sum : lines) {
        add(sum);
    }
    std::vector<std::optional<SignedAmounts>> amounts;
    amounts.reserve(groups_.ids().size());
    for (std::size_t group = 0; group < groups_.ids().size(); ++group) {
        amounts.push_back(takeAmount(group));
    }
    return amounts;
}

void ChartSums::add(const OfferSum& lines) {
    const std::uint32_t group = groups_.ofOffer(lines.offerNumber);
    if (group == OfferGroups::none) {
        return;
    }
    const SalesOffer& offer = *lines.offer;
    Money& money = sums_[group * rates_.size() + offer.currency];
    money.isUsed = true;
    const bool isRefund = (lines.units < 0) != offer.proceeds.value().isNegative();
    (isRefund ? money.refunds : money.proceeds).add(lines.units, offer.proceeds);
}

std::optional<SignedAmounts> ChartSums::takeAmount(std::size_t group) {
    bool hasRate = false;
    long double proceeds = 0;
    long double refunds = 0;
    for (std::size_t currency = 0; currency < rates_.size(); ++currency) {
        Money& money = sums_[group * rates_.size() + currency];
        if (!money.isUsed) {
            continue;
        }
        if (const auto& rate = rates_[currency]) {
            hasRate = true;
            proceeds += money.proceeds.approximateTotal() * *rate;
            refunds += money.refunds.approximateTotal() * *rate;
        }
        money = {};
    }
    return hasRate ? std::optional(SignedAmounts{finite(proceeds), finite(refunds)}) : std::nullopt;
}

}  // namespace vantrell
