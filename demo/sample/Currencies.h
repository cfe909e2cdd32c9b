#pragma once

#include "sample/Money.h"

#include <cstdint>
#include <string_view>

namespace vantrell::sample {

/// A currency that the store sells in, and how its shelf prices come about: the price in US dollars at a
/// fixed parity, raised to the next multiple of `step` and lowered by `ending`, all in minor units.
struct Currency {
    std::string_view code;
    int digits;
    std::int64_t perDollar;
    std::int64_t step;
    std::int64_t ending;
};

/// `code` must be one of the store's currencies.
[[nodiscard]] const Currency& currencyNamed(std::string_view code);

/// What a customer pays for what costs `dollarCents` in the United States.
[[nodiscard]] Money shelfPrice(const Currency& currency, std::int64_t dollarCents);

}  // namespace vantrell::sample
