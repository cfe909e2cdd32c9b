#pragma once

#include "data/LineTexts.h"
#include "data/SalesRow.h"

namespace vantrell {

/// What every figure is worked out from: the part of a stored sales line that a reload reads.
struct SalesFigures {
    Instant beginDate;
    TextID sku = 0;
    TextID title = 0;
    TextID productType = 0;
    TextID parentSKU = 0;
    std::int64_t units = 0;
    Decimal proceedsPerUnit;
    TextID proceedsCurrency = 0;
    Decimal customerPrice;
    TextID customerCurrency = 0;
    TextID country = 0;
    std::int64_t appleID = 0;
};

/// A sales line as it is stored: a parsed one with its texts as numbers of the dictionary.
struct SalesLine {
    SalesFigures figures;
    Instant endDate;
    TextID version = 0;
    TextID promoCode = 0;
    TextID subscription = 0;
    TextID period = 0;
    TextID device = 0;
    TextID platforms = 0;
    TextID proceedsReason = 0;
    TextID client = 0;
    TextID orderType = 0;
};

[[nodiscard]] SalesLine encoded(const ParsedSalesRow& row, LineTexts& texts);
[[nodiscard]] ParsedSalesRow decoded(const SalesLine& line, const TextDictionary& texts);

}  // namespace vantrell
