#include "sample/Currencies.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace vantrell::sample {

namespace {

constexpr std::array<Currency, 25> storeCurrencies{{
    {"AED", 2, 400, 100, 1},        {"AUD", 2, 150, 100, 1},     {"BRL", 2, 600, 500, 10},
    {"CAD", 2, 139, 100, 1},        {"CHF", 2, 100, 100, 0},     {"CLP", 0, 1000, 100, 10},
    {"CNY", 2, 700, 100, 0},        {"CZK", 2, 2500, 1000, 100}, {"DKK", 2, 800, 500, 0},
    {"EUR", 2, 100, 100, 1},        {"GBP", 2, 100, 100, 1},     {"HKD", 2, 800, 100, 0},
    {"HUF", 2, 40000, 10000, 1000}, {"ILS", 2, 390, 100, 10},    {"INR", 2, 9000, 10000, 100},
    {"JPY", 0, 160, 10, 0},         {"KRW", 0, 1500, 100, 0},    {"MXN", 2, 2000, 1000, 100},
    {"NOK", 2, 1200, 500, 0},       {"PLN", 2, 500, 100, 1},     {"SEK", 2, 1200, 500, 0},
    {"SGD", 2, 140, 100, 2},        {"TRY", 2, 4000, 500, 1},    {"USD", 2, 100, 1, 0},
    {"VND", 0, 25000, 1000, 0},
}};

}  // namespace

const Currency& currencyNamed(std::string_view code) {
    const auto* const found = std::ranges::find(storeCurrencies, code, &Currency::code);
    assert(found != storeCurrencies.end());
    return *found;
}

Money shelfPrice(const Currency& currency, std::int64_t dollarCents) {
    const auto unit = 100 * currency.step;
    const auto steps = (dollarCents * currency.perDollar + unit - 1) / unit;
    return {steps * currency.step - currency.ending, currency.digits};
}

}  // namespace vantrell::sample
