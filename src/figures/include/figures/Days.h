#pragma once

#include "base/Instant.h"
#include "currency/CurrencyConverter.h"
#include "data/ReportStatus.h"
#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"

#include <string>
#include <vector>

namespace vantrell {

/// One day of a chart. Amounts are in the display currency and only for drawing.
struct DayPoint {
    CivilDate day;
    double proceeds = 0;  ///< sum of the lines worth 0 or more
    double refunds = 0;   ///< sum of the lines worth less than 0; never above zero
    ReportStatus status = ReportStatus::missing;
    bool operator==(const DayPoint&) const = default;
};

/// One day of a table.
struct DayTableRow {
    std::string key;  ///< the day key
    CivilDate day;
    ReportStatus status = ReportStatus::missing;
    AggregateStats stats;
    bool operator==(const DayTableRow&) const = default;
};

/// A point for each day from `from` to `to`, oldest first. Rows without a rate are left out.
[[nodiscard]] std::vector<DayPoint> dayPoints(const SharedSnapshot& snapshot,
                                              const CurrencyConverter& converter, const std::string& from,
                                              const std::string& to, const AppFilter& apps);
/// A row for each day from `from` to `to`, newest first.
[[nodiscard]] std::vector<DayTableRow> dayTable(const SharedSnapshot& snapshot, const std::string& from,
                                                const std::string& to, const AppFilter& apps);

/// All lines of a day: what moved money first, then the larger amount in the display currency; equals stay in
/// the order of the report.
[[nodiscard]] std::vector<SalesRowLite> lineItems(const SharedSnapshot& snapshot,
                                                  const CurrencyConverter& converter, const std::string& day,
                                                  const AppFilter& apps);

}  // namespace vantrell
