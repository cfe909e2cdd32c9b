#include "figures/Payouts.h"

#include "Count.h"
#include "calendar/FiscalPeriod.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

Decimal& amountIn(AmountsByCurrency& amounts, std::string_view currency) {
    const auto known = amounts.find(currency);
    return known != amounts.end() ? known->second : amounts[std::string(currency)];
}

void addPayment(FinancePeriodStat& period, const FinanceRowLite& row) {
    if (row.startDate > distantPast) {
        period.start = std::min(period.start.value_or(row.startDate), row.startDate);
    }
    if (row.endDate > distantPast) {
        period.end = std::max(period.end.value_or(row.endDate), row.endDate);
    }
    if (row.saleOrReturn == "R") {
        const std::int64_t returned = row.quantity < 0 ? countNegated(row.quantity) : row.quantity;
        period.returns = countSum(period.returns, returned);
    } else {
        period.units = countSum(period.units, row.quantity);
    }
    amountIn(period.byCurrency, row.currency) += row.extendedShare;
}

/// Empty for a text that is no fiscal period; such lines count as of one year with each other.
std::string fiscalYear(std::string_view period) {
    const auto parsed = parseFiscalPeriod(period);
    return parsed ? zeroPadded(parsed->year, 4) : std::string();
}

}  // namespace

std::vector<FinancePeriodStat> financePeriods(const Snapshot& snapshot, const AppFilter& apps) {
    std::map<std::string_view, FinancePeriodStat, std::greater<>> periods;
    for (const auto& report : snapshot.financeRows) {
        for (const FinanceRowLite& row : report->rows) {
            if (!apps || snapshot.catalog->isOf(row.appleID, *apps)) {
                addPayment(periods[report->fiscalPeriod], row);
            }
        }
    }
    std::vector<FinancePeriodStat> stats;
    stats.reserve(periods.size());
    for (auto& [label, period] : periods) {
        period.label = label;
        stats.push_back(std::move(period));
    }
    return stats;
}

std::vector<AppPayout> appPayouts(const Snapshot& snapshot, const ReportCalendar& calendar) {
    const auto& finished = snapshot.financeOKLabels;
    const std::string currentYear =
        fiscalYear(finished.empty() ? calendar.currentFiscalPeriod() : finished.back());
    std::map<std::int64_t, AppPayout> payouts;
    for (const auto& report : snapshot.financeRows) {
        const bool isCurrent = fiscalYear(report->fiscalPeriod) == currentYear;
        for (const FinanceRowLite& row : report->rows) {
            const auto owner = snapshot.catalog->owningApp(row.appleID);
            if (!owner) {
                continue;
            }
            AppPayout& payout = payouts[*owner];
            amountIn(payout.allTime, row.currency) += row.extendedShare;
            if (isCurrent) {
                amountIn(payout.currentFiscalYear, row.currency) += row.extendedShare;
            }
        }
    }
    std::vector<AppPayout> inOrder;
    for (const AppInfo& app : snapshot.catalog->apps()) {
        if (const auto payout = payouts.find(app.id); payout != payouts.end()) {
            payout->second.app = app;
            inOrder.push_back(std::move(payout->second));
        }
    }
    return inOrder;
}

}  // namespace vantrell
