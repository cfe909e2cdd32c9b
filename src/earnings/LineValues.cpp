#include "earnings/LineValues.h"

namespace vantrell {
namespace {

constexpr std::int64_t fewestUnits = -2;
constexpr std::int64_t mostUnits = 5;
constexpr auto fewUnits = static_cast<std::size_t>(mostUnits - fewestUnits + 1);

}  // namespace

LineValues::LineValues(const SalesSnapshot& snapshot, const CurrencyConverter& converter)
    : snapshot_(snapshot), ofFewUnits_(snapshot.prices().size() * fewUnits) {
    conversions_.reserve(snapshot.currencies().size());
    for (std::uint32_t currency = 0; currency < snapshot.currencies().size(); ++currency) {
        conversions_.push_back(converter.conversion(snapshot.currencies().text(currency)));
    }
}

const LineValues::Worth* LineValues::worth(const SalesRowRef& row) {
    const std::uint32_t number = row.chunk().prices[row.index];
    const SalesPrice& price = snapshot_.prices()[number];
    const auto& conversion = conversions_[price.currency];
    if (!conversion) {
        return nullptr;
    }
    const std::int64_t units = row.units();
    const bool isFew = units >= fewestUnits && units <= mostUnits;
    Worth& worth = isFew ? ofFewUnits_[number * fewUnits + static_cast<std::size_t>(units - fewestUnits)]
                         : ofManyUnits_[number][units];
    if (!worth.isKnown) {
        worth.amount = (*conversion)(Decimal(units) * price.proceeds.value());
        worth.value = worth.amount.toDouble();
        worth.isKnown = true;
    }
    return &worth;
}

std::optional<Decimal> LineValues::amount(const SalesRowRef& row) {
    const Worth* known = worth(row);
    return known == nullptr ? std::nullopt : std::optional(known->amount);
}

std::optional<double> LineValues::value(const SalesRowRef& row) {
    const Worth* known = worth(row);
    return known == nullptr ? std::nullopt : std::optional(known->value);
}

}  // namespace vantrell
