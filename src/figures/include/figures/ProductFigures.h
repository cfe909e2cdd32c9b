#pragma once

#include "base/Decimal.h"
#include "figures/AggregateStats.h"

#include <cstdint>
#include <string>

namespace vantrell {

/// What one app or product sold in all time.
struct ProductStat {
    std::int64_t productID = 0;  ///< Apple identifier; 0 for lines that have none
    std::string title;
    std::string subtitle;  ///< what it is, and of which app
    AggregateStats stats;
    double sortValue = 0;  ///< in the display currency; what has no rate counts for nothing
    bool operator==(const ProductStat&) const = default;
};

/// What customers of one country brought in all time.
struct CountryStat {
    std::string country;  ///< the code of the report, or "—" for lines without one
    Decimal amount;       ///< in the display currency; what has no rate is left out
    bool operator==(const CountryStat&) const = default;
};

}  // namespace vantrell
