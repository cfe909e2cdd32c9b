#pragma once

#include "sample/Currencies.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vantrell::sample {

/// A country with a storefront.
struct Territory {
    std::string_view code;
    std::string_view currency;  ///< of its prices and of the proceeds from it
    std::int64_t taxPercent;    ///< contained in its prices
    std::uint32_t weight;       ///< how much is sold there, against the other countries
};

[[nodiscard]] std::span<const Territory> territories();

/// `code` must be one of the territories.
[[nodiscard]] std::size_t territoryIndex(std::string_view code);

}  // namespace vantrell::sample
