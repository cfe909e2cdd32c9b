#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"

#include <cstdint>
#include <string>

namespace vantrell {

/// One parsed line of a finance report. A return has the text "R" and negative amounts.
struct ParsedFinanceRow {
    Instant startDate = distantPast;  ///< noon UTC of the day; distantPast where the report gave none
    Instant endDate = distantPast;    ///< as above
    std::string vendorIdentifier;
    std::string title;
    std::string productType;
    std::int64_t quantity = 0;
    Decimal partnerShare;          ///< per unit
    Decimal extendedPartnerShare;  ///< of the whole line
    std::string partnerShareCurrency;
    std::string saleOrReturn;
    std::int64_t appleID = 0;  ///< 0 means none
    std::string country;
    std::string promoCode;
    Decimal customerPrice;
    std::string customerCurrency;

    bool operator==(const ParsedFinanceRow&) const = default;
};

/// A stored finance line: a parsed one and the report that it belongs to.
struct FinanceRow {
    std::string accountID = "default";
    std::string region = "ZZ";
    std::string fiscalPeriod;
    ParsedFinanceRow line;

    bool operator==(const FinanceRow&) const = default;
};

}  // namespace vantrell
