#include "currency/CurrencyConverter.h"

namespace vantrell {
namespace {

// As the shortest text that reads back as the same double: 1.3641 is exactly 1.3641.
std::optional<Decimal> usableRate(const Rates& rates, std::string_view code) {
    const auto rate = rates.find(code);
    if (rate == rates.end() || !(rate->second > 0)) {
        return std::nullopt;
    }
    return Decimal::fromShortestText(rate->second);
}

}  // namespace

std::optional<Conversion> CurrencyConverter::conversion(std::string_view code) const {
    if (code == displayCurrency) {
        return Conversion();
    }
    const auto from = usableRate(perUSD, code);
    const auto to = usableRate(perUSD, displayCurrency);
    if (!from || !to) {
        return std::nullopt;
    }
    return Conversion(*from, *to);
}

std::optional<Decimal> CurrencyConverter::convert(const Decimal& amount, std::string_view code) const {
    const auto prepared = conversion(code);
    return prepared ? std::optional((*prepared)(amount)) : std::nullopt;
}

ConvertedTotal CurrencyConverter::total(const std::map<std::string, Decimal, std::less<>>& byCurrency) const {
    ConvertedTotal total;
    for (const auto& [code, amount] : byCurrency) {
        if (const auto converted = convert(amount, code)) {
            total.amount += *converted;
        } else {
            total.withoutRate.push_back(code);
        }
    }
    return total;
}

}  // namespace vantrell
