#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"
#include "data/ReportFrequency.h"
#include "figures/ProductKind.h"

#include <compare>
#include <cstdint>
#include <string_view>

namespace vantrell {

/// Identifies a row of one snapshot. No two rows of any two reloads share one.
struct RowID {
    std::int64_t load = 0;  ///< the reload that made the row
    std::uint64_t index = 0;
    auto operator<=>(const RowID&) const = default;
};

/// One stored sales line as the figures see it. Texts are valid as long as the snapshot that gave the row.
struct SalesRowLite {
    RowID id;
    ReportFrequency frequency = ReportFrequency::daily;
    std::string_view reportDate;  ///< a day key, month key or year label, by frequency
    Instant date;                 ///< noon UTC of the line's first day
    std::int64_t appleID = 0;     ///< 0 means none
    std::string_view sku;
    std::string_view parentSKU;
    std::string_view title;
    ProductKind kind = ProductKind::other;
    std::string_view productType;
    std::int64_t units = 0;  ///< negative for a refund
    Decimal proceedsPerUnit;
    std::string_view currency;  ///< of the proceeds
    Decimal customerPrice;
    std::string_view customerCurrency;
    std::string_view country;

    /// What the line earned, in `currency`; negative for a refund.
    [[nodiscard]] Decimal amount() const { return Decimal(units) * proceedsPerUnit; }
};

}  // namespace vantrell
