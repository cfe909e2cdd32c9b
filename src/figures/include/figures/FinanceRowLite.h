#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

/// One stored finance line as the figures see it. Texts are valid as long as the snapshot that gave the row.
struct FinanceRowLite {
    Instant startDate;  ///< distantPast where the report gave none
    Instant endDate;    ///< as above
    std::int64_t appleID = 0;
    std::string_view title;
    std::int64_t quantity = 0;
    Decimal extendedShare;      ///< of the whole line, in `currency`; negative for a return
    std::string_view currency;  ///< of the payment
    std::string_view saleOrReturn;
    std::string_view country;
};

/// The lines of one stored finance report. Never changes.
struct FinanceChunk {
    std::string fiscalPeriod;
    std::vector<FinanceRowLite> rows;
};

}  // namespace vantrell
