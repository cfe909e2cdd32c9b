#include "figures/Days.h"

#include "ChartSums.h"
#include "StatsAccumulator.h"
#include "calendar/DayKey.h"
#include "figures/SalesSelection.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

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

std::vector<DayPoint> dayPoints(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                                const std::string& from, const std::string& to, const AppFilter& apps) {
    const SalesRows& rows = snapshot->salesRows;
    const OfferGroups sold(rows.offers(), [](const SalesOffer& offer) {
        return isSold(offer.kind) ? std::optional(0) : std::nullopt;
    });
    ChartSums sums(sold, rows.currencies(), converter);
    std::map<std::string_view, SignedAmounts> amounts;
    dailyRows(snapshot, from, to, apps)
        .forEachSection([&rows](std::size_t chunk) { return rows.reportDate(chunk); },
                        [&](std::string_view day, const std::vector<OfferSum>& lines) {
                            for (const auto& amount : sums.amounts(lines)) {
                                amounts[day] = amount.value_or(SignedAmounts());
                            }
                        });
    std::vector<DayPoint> points;
    for (const auto& [key, date] : days(from, to)) {
        const SignedAmounts amount = amounts[key];
        points.push_back({date, amount.proceeds, amount.refunds, snapshot->dailyStatus(key)});
    }
    return points;
}

std::vector<DayTableRow> dayTable(const SharedSnapshot& snapshot, const std::string& from,
                                  const std::string& to, const AppFilter& apps) {
    const SalesRows& rows = snapshot->salesRows;
    std::map<std::string_view, StatsAccumulator> sums;
    dailyRows(snapshot, from, to, apps)
        .forEachSection(
            [&rows](std::size_t chunk) { return rows.reportDate(chunk); },
            [&sums](std::string_view day, const std::vector<OfferSum>& lines) { sums[day].add(lines); });
    std::vector<DayTableRow> table;
    for (const auto& [key, date] : days(from, to)) {
        const auto sum = sums.find(key);
        table.push_back({key, date, snapshot->dailyStatus(key),
                         sum == sums.end() ? AggregateStats() : sum->second.stats(rows.currencies())});
    }
    std::ranges::reverse(table);
    return table;
}

std::vector<SalesRowLite> lineItems(const SharedSnapshot& snapshot, const CurrencyConverter& converter,
                                    const std::string& day, const AppFilter& apps) {
    const std::vector<SalesRowLite> rows = dailyRows(snapshot, day, day, apps).rows();
    std::vector<std::pair<std::pair<bool, double>, const SalesRowLite*>> ranked;
    ranked.reserve(rows.size());
    for (const SalesRowLite& row : rows) {
        ranked.emplace_back(lineItemRank(converter, row), &row);
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
