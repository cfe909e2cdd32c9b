#include "calendar/FiscalPeriod.h"
#include "figures/Count.h"
#include "figures/EarningsStore.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

// Figures from finance reports: what was paid.

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

std::vector<FinancePeriodStat> EarningsStore::financePeriods(const AppFilter& apps) const {
    std::map<std::string_view, FinancePeriodStat, std::greater<>> periods;
    for (const FinanceRowLite& row : financeRows()) {
        if (!apps || passes(row.appleID, *apps)) {
            addPayment(periods[row.fiscalPeriod], row);
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

std::vector<AppPayout> EarningsStore::appPayouts() const {
    const std::string currentYear =
        fiscalYear(financeOKLabels_.empty() ? calendar_.currentFiscalPeriod() : financeOKLabels_.back());
    std::map<std::int64_t, AppPayout> payouts;
    std::map<std::string_view, bool> isCurrent;
    for (const FinanceRowLite& row : financeRows()) {
        const auto owner = catalog_.owningApp(row.appleID);
        if (!owner) {
            continue;
        }
        const auto [period, isNew] = isCurrent.try_emplace(row.fiscalPeriod);
        if (isNew) {
            period->second = fiscalYear(row.fiscalPeriod) == currentYear;
        }
        AppPayout& payout = payouts[*owner];
        amountIn(payout.allTime, row.currency) += row.extendedShare;
        if (period->second) {
            amountIn(payout.currentFiscalYear, row.currency) += row.extendedShare;
        }
    }
    std::vector<AppPayout> inOrder;
    for (const AppInfo& app : catalog_.apps()) {
        if (const auto payout = payouts.find(app.id); payout != payouts.end()) {
            payout->second.app = app;
            inOrder.push_back(std::move(payout->second));
        }
    }
    return inOrder;
}

}  // namespace vantrell
