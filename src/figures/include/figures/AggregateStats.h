#pragma once

#include "base/Decimal.h"

#include <cstdint>
#include <map>
#include <string>

namespace vantrell {

/// Exact amounts by currency code.
using AmountsByCurrency = std::map<std::string, Decimal, std::less<>>;

/// Units and proceeds of a set of sales lines; the unit of every sales figure.
struct AggregateStats {
    std::int64_t appUnits = 0;  ///< of app lines with units of 0 or more
    std::int64_t iapUnits = 0;  ///< of in-app lines with units of 0 or more
    std::int64_t updateUnits = 0;
    std::int64_t redownloadUnits = 0;
    std::int64_t refundedUnits = 0;  ///< a positive count
    /// Signed sums, never rounded. A currency whose lines were all worth zero has no entry; one whose sum
    /// came back to zero keeps its entry.
    AmountsByCurrency proceedsByCurrency;

    /// True when nothing was counted and no money moved.
    [[nodiscard]] bool isEmpty() const { return *this == AggregateStats(); }

    bool operator==(const AggregateStats&) const = default;
};

}  // namespace vantrell
