#pragma once

#include "base/Instant.h"
#include "figures/AggregateStats.h"
#include "figures/Catalog.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantrell {

/// What was paid for one fiscal period, as its finance report says.
struct FinancePeriodStat {
    std::string label;             ///< the fiscal period
    std::optional<Instant> start;  ///< the earliest of the lines; absent where none gave one
    std::optional<Instant> end;    ///< the latest of the lines; absent as above
    std::int64_t units = 0;        ///< of all lines but returns, negative ones included
    std::int64_t returns = 0;      ///< a positive count
    /// Signed sums, never rounded. Every currency of a line has an entry, also one worth zero.
    AmountsByCurrency byCurrency;
    bool operator==(const FinancePeriodStat&) const = default;
};

/// What was paid for one app and its products.
struct AppPayout {
    AppInfo app;
    AmountsByCurrency currentFiscalYear;  ///< of the fiscal year of the newest finished report
    AmountsByCurrency allTime;
    bool operator==(const AppPayout&) const = default;
};

}  // namespace vantrell
