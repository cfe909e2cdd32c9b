#pragma once

#include "platform/Decimal.h"
#include "platform/Instant.h"

#include <cstdint>
#include <string>

namespace vantrell {

/// One parsed line of a sales report. `units` is negative for a refund; amounts are per unit.
struct ParsedSalesRow {
    Instant beginDate = distantPast;  ///< noon UTC of the day
    Instant endDate = distantPast;    ///< noon UTC of the day
    std::string sku;
    std::string title;
    std::string version;
    std::string productType;
    std::string parentSKU;  ///< of an in-app line: the SKU of the app that owns the product
    std::int64_t units = 0;
    Decimal proceedsPerUnit;
    std::string proceedsCurrency;
    Decimal customerPrice;
    std::string customerCurrency;
    std::string country;
    std::int64_t appleID = 0;  ///< of an in-app line: the product's own; 0 means none
    std::string promoCode;
    std::string subscription;
    std::string period;
    std::string device;
    std::string platforms;
    std::string proceedsReason;
    std::string client;
    std::string orderType;

    bool operator==(const ParsedSalesRow&) const = default;
};

/// A stored sales line: a parsed one and the report that it belongs to.
struct SalesRow {
    std::string accountID = "default";
    std::string frequencyRaw = "DAILY";
    std::string reportDate;
    ParsedSalesRow line;

    bool operator==(const SalesRow&) const = default;
};

}  // namespace vantrell
