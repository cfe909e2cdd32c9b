#pragma once

#include "data/OfferDictionary.h"
#include "figures/ExactSum.h"
#include "figures/ProductKind.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace vantrell {

/// One product at one price: what a line has in common with a thousand others. A product that was renamed has
/// offers under each of its titles.
struct SalesOffer {
    // What sums need, side by side in memory.
    ProductKind kind = ProductKind::other;
    std::uint32_t currency = 0;  ///< of the proceeds, as a place in the table's currencies
    ScaledPrice proceeds;        ///< per unit

    StoredOffer stored;
};

/// The offers of the store under its own numbers, as far as its lines speak of them.
struct OfferTable {
    std::vector<SalesOffer> offers;
    /// Those of proceeds, numbered here so that their numbers are few and small.
    std::vector<std::string_view> currencies;
};

}  // namespace vantrell
