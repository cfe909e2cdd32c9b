#pragma once

#include "data/FinanceRow.h"
#include "data/TextDictionary.h"

namespace vantrell {

/// A finance line as it is stored: a parsed one with its texts as numbers of the dictionary.
struct FinanceLine {
    using Figures = FinanceLine;

    // The largest first, since a store can hold millions of lines.
    Decimal partnerShare;
    Decimal extendedPartnerShare;
    Decimal customerPrice;
    Instant startDate;
    Instant endDate;
    std::int64_t quantity = 0;
    std::int64_t appleID = 0;
    TextID vendorIdentifier = 0;
    TextID title = 0;
    TextID productType = 0;
    TextID partnerShareCurrency = 0;
    TextID saleOrReturn = 0;
    TextID country = 0;
    TextID promoCode = 0;
    TextID customerCurrency = 0;
};

}  // namespace vantrell
