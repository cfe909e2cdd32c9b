#include "ChartSums.h"
#include "calendar/DayKey.h"
#include "figures/EarningsStore.h"
#include "figures/StatsAccumulator.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

// Figures by day.

namespace vantrell {
namespace {

double convertedOrZero(const CurrencyConverter& converter, const SalesRowLite& row) {
    const auto converted = converter.convert(row.amount(), row.currency);
    return converted ? converted->toDouble() : 0;
}

// Lines that never bring money, or brought none.
bool isSilent(const SalesRowLite& row) {
    return row.kind == ProductKind::update || row.kind == ProductKind::redownload || row.amount().isZero();
}

// What a line is sorted by, the smallest first.
std::pair<bool, double> lineItemRank(const CurrencyConverter& converter, const SalesRowLite& row) {
    return {isSilent(row), -convertedOrZero(converter, row)};
}

}  // namespace

std::vector<DayPoint> EarningsStore::dayPoints(const std::string& from, const std::string& to,
                                               const AppFilter& apps) const {
    const OfferGroups sold(salesRows_.offers(), [](const SalesOffer& offer) {
        return isSold(offer.kind) ? std::optional(0) : std::nullopt;
    });
    ChartSums sums(sold, salesRows_.currencies(), converter_);
    std::map<std::string_view, SignedAmounts> amounts;
    dailyRows(from, to, apps)
        .forEachSection([this](std::size_t chunk) { return reportDate(chunk); },
                        [&](std::string_view day, const std::vector<OfferSum>& lines) {
                            for (const auto& amount : sums.amounts(lines)) {
                                amounts[day] = amount.value_or(SignedAmounts());
                            }
                        });
    std::vector<DayPoint> points;
    for (const auto& [key, date] : days(from, to)) {
        const SignedAmounts amount = amounts[key];
        points.push_back({date, amount.proceeds, amount.refunds, dailyStatus(key)});
    }
    return points;
}

std::vector<DayTableRow> EarningsStore::dayTable(const std::string& from, const std::string& to,
                                                 const AppFilter& apps) const {
    std::map<std::string_view, StatsAccumulator> sums;
    dailyRows(from, to, apps)
        .forEachSection(
            [this](std::size_t chunk) { return reportDate(chunk); },
            [&sums](std::string_view day, const std::vector<OfferSum>& lines) { sums[day].add(lines); });
    std::vector<DayTableRow> table;
    for (const auto& [key, date] : days(from, to)) {
        const auto sum = sums.find(key);
        table.push_back({key, date, dailyStatus(key),
                         sum == sums.end() ? AggregateStats() : sum->second.stats(salesRows_.currencies())});
    }
    std::ranges::reverse(table);
    return table;
}

bool EarningsStore::lineItemOrder(const SalesRowLite& left, const SalesRowLite& right) const {
    return lineItemRank(converter_, left) < lineItemRank(converter_, right);
}

std::vector<SalesRowLite> EarningsStore::lineItems(const std::string& day, const AppFilter& apps) const {
    const std::vector<SalesRowLite> rows = dailyRows(day, day, apps).rows();
    std::vector<std::pair<std::pair<bool, double>, const SalesRowLite*>> ranked;
    ranked.reserve(rows.size());
    for (const SalesRowLite& row : rows) {
        ranked.emplace_back(lineItemRank(converter_, row), &row);
    }
    std::ranges::stable_sort(ranked, {}, [](const auto& entry) { return entry.first; });
    std::vector<SalesRowLite> sorted;
    sorted.reserve(rows.size());
    for (const auto& [rank, row] : ranked) {
        sorted.push_back(*row);
    }
    return sorted;
}

}  // namespace vantrell
