#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrell {

/// One parsed line of a sales report, with its texts as strings or as views. `units` is negative for a
/// refund; amounts are per unit.
template <typename Text>
struct SalesRowOf {
    Instant beginDate = distantPast;  ///< noon UTC of the day
    Instant endDate = distantPast;    ///< noon UTC of the day
    Text sku;
    Text title;
    Text version;
    Text productType;
    Text parentSKU;  ///< of an in-app line: the SKU of the app that owns the product
    std::int64_t units = 0;
    Decimal proceedsPerUnit;
    Text proceedsCurrency;
    Decimal customerPrice;
    Text customerCurrency;
    Text country;
    std::int64_t appleID = 0;  ///< of an in-app line: the product's own; 0 means none
    Text promoCode;
    Text subscription;
    Text period;
    Text device;
    Text platforms;
    Text proceedsReason;
    Text client;
    Text orderType;

    bool operator==(const SalesRowOf&) const = default;
};

using ParsedSalesRow = SalesRowOf<std::string>;
/// Refers to the text of the report.
using SalesRowView = SalesRowOf<std::string_view>;

/// A stored sales line: a parsed one and the report that it belongs to.
struct SalesRow {
    std::string accountID = "default";
    std::string frequencyRaw = "DAILY";
    std::string reportDate;
    ParsedSalesRow line;

    bool operator==(const SalesRow&) const = default;
};

}  // namespace vantrell
