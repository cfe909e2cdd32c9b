#include "calendar/DayKey.h"
#include "earnings/EarningsStore.h"
#include "earnings/LineValues.h"

#include <algorithm>
#include <map>
#include <string_view>

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

}  // namespace

std::vector<DayPoint> EarningsStore::dayPoints(const std::string& from, const std::string& to,
                                               const AppFilter& apps) const {
    LineValues values(salesRows_, converter_);
    std::map<std::string_view, DayPoint> sums;
    DayPoint* ofDay = nullptr;
    dailyRows(from, to, apps)
        .forEach([&](const SalesChunk& report) { ofDay = &sums[report.reportDate]; },
                 [&](const SalesRowRef& row) {
                     const auto value = isSold(row.item().kind) ? values.value(row) : std::nullopt;
                     if (value) {
                         (*value < 0 ? ofDay->refunds : ofDay->proceeds) += *value;
                     }
                 });
    std::vector<DayPoint> points;
    for (const auto& [key, date] : days(from, to)) {
        DayPoint point = sums[key];
        point.day = date;
        point.status = dailyStatus(key);
        points.push_back(point);
    }
    return points;
}

std::vector<DayTableRow> EarningsStore::dayTable(const std::string& from, const std::string& to,
                                                 const AppFilter& apps) const {
    std::map<std::string_view, StatsAccumulator> sums;
    const SalesSelection rows = dailyRows(from, to, apps);
    rows.forEachReport(
        [&](std::size_t chunk) { rows.addReport(chunk, sums[salesRows_.chunks()[chunk]->reportDate]); });
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
    const bool leftSilent = isSilent(left);
    if (leftSilent != isSilent(right)) {
        return !leftSilent;
    }
    return convertedOrZero(converter_, left) > convertedOrZero(converter_, right);
}

}  // namespace vantrell
