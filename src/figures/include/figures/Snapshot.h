#pragma once

#include "data/ReportStatus.h"
#include "figures/Catalog.h"
#include "figures/FinanceRowLite.h"
#include "figures/SalesRows.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

using DailyStatuses = std::map<std::string, ReportStatus, std::less<>>;
using FinanceChunks = std::vector<std::shared_ptr<const FinanceChunk>>;

/// All that the figures are worked out from, as the store had it at one moment. Only shared, and never
/// changed once it is, so that a figure holds on to what it was begun with.
struct Snapshot {
    SalesRows salesRows;
    FinanceChunks financeRows;  ///< by fiscal period
    std::shared_ptr<const Catalog> catalog = std::make_shared<const Catalog>();
    DailyStatuses dailyStatuses;
    // Labels in ascending order.
    std::vector<std::string> yearlyOKLabels;  ///< of years whose report covers them
    std::vector<std::string> monthlyOKLabels;
    std::vector<std::string> emptyMonths;  ///< without sales, as their reports say
    std::vector<std::string> unavailableYears;
    std::vector<std::string> financeOKLabels;

    /// `missing` for a day of which nothing is known.
    [[nodiscard]] ReportStatus dailyStatus(std::string_view day) const {
        const auto known = dailyStatuses.find(day);
        return known == dailyStatuses.end() ? ReportStatus::missing : known->second;
    }
};

using SharedSnapshot = std::shared_ptr<const Snapshot>;

}  // namespace vantrell
