#pragma once

#include "base/Decimal.h"
#include "figures/ExactSum.h"
#include "figures/ProductKind.h"

#include <cstdint>
#include <string_view>

namespace vantrell {

/// One product at one price: what a line has in common with a thousand others. A product that was renamed has
/// offers under each of its titles.
struct SalesOffer {
    // What sums need, side by side in memory.
    ProductKind kind = ProductKind::other;
    std::uint32_t currency = 0;  ///< of the proceeds, as a number of the snapshot's currencies
    ScaledPrice proceeds;        ///< per unit

    std::int64_t appleID = 0;
    std::string_view sku;
    std::string_view parentSKU;
    std::string_view title;
    std::string_view productType;
    Decimal customerPrice;
    std::string_view customerCurrency;
};

}  // namespace vantrell
