#pragma once

#include "data/FinanceRow.h"
#include "data/TextDictionary.h"

namespace vantrell {

/// A finance line as it is stored: a parsed one with its texts as numbers of the dictionary.
struct FinanceLine {
    using Figures = FinanceLine;

    Instant startDate;
    Instant endDate;
    TextID vendorIdentifier = 0;
    TextID title = 0;
    TextID productType = 0;
    std::int64_t quantity = 0;
    Decimal partnerShare;
    Decimal extendedPartnerShare;
    TextID partnerShareCurrency = 0;
    TextID saleOrReturn = 0;
    std::int64_t appleID = 0;
    TextID country = 0;
    TextID promoCode = 0;
    Decimal customerPrice;
    TextID customerCurrency = 0;
};

}  // namespace vantrell
