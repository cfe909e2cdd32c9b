#pragma once

#include "base/Instant.h"
#include "calendar/ReportCalendar.h"
#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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

/// What was paid, newest fiscal period first.
[[nodiscard]] std::vector<FinancePeriodStat> financePeriods(const Snapshot& snapshot, const AppFilter& apps);
/// The apps that were ever paid for, in the order of the catalog. Lines of products that no sales report
/// showed belong to no app.
[[nodiscard]] std::vector<AppPayout> appPayouts(const Snapshot& snapshot, const ReportCalendar& calendar);

}  // namespace vantrell
