#include "figures/Periods.h"

#include "StatsAccumulator.h"
#include "calendar/DayKey.h"
#include "figures/Coverage.h"
#include "figures/SalesSelection.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace vantrell {
namespace {

constexpr int finishedMonths = 12;

/// What tells two sums of the same sales apart.
AggregateStats withoutZeros(AggregateStats stats) {
    std::erase_if(stats.proceedsByCurrency, [](const auto& entry) { return entry.second.isZero(); });
    return stats;
}

PeriodStat finishedMonth(const SharedSnapshot& snapshot, const std::string& month, const AppFilter& apps) {
    const CivilDate first = dateFromDayKey(month + "-01").value();
    const std::string from = dayKey(first);
    const std::string to = dayKey(first.year() / first.month() / std::chrono::last);
    const DayCounts counts = dayCounts(*snapshot, from, to);
    const bool areKnown = counts.known == counts.days;
    const AggregateStats ofDays = dailyRows(snapshot, from, to, apps).aggregate();
    if (std::ranges::binary_search(snapshot->monthlyOKLabels, month)) {
        PeriodStat stat{month, PeriodSource::monthlyReport,
                        reportRows(snapshot, ReportFrequency::monthly, month, apps).aggregate()};
        if (areKnown && withoutZeros(stat.stats) != withoutZeros(ofDays)) {
            stat.source = PeriodSource::disputedMonthlyReport;
        }
        return stat;
    }
    PeriodStat stat{month, PeriodSource::dailyReports, ofDays};
    if (!areKnown) {
        stat.source = PeriodSource::someDailyReports;
        stat.days = counts.days;
        stat.fetchedDays = counts.known;
    }
    return stat;
}

}  // namespace

std::vector<PeriodStat> monthStats(const SharedSnapshot& snapshot, const ReportCalendar& calendar,
                                   const AppFilter& apps) {
    const std::string thisMonth = calendar.monthKey(0);
    std::vector<PeriodStat> months{
        {thisMonth, PeriodSource::monthToDate,
         dailyRows(snapshot, thisMonth + "-01", calendar.dayKey(1), apps).aggregate()}};
    for (int monthsAgo = 1; monthsAgo <= finishedMonths; ++monthsAgo) {
        months.push_back(finishedMonth(snapshot, calendar.monthKey(monthsAgo), apps));
    }
    return months;
}

std::vector<PeriodStat> yearStats(const SharedSnapshot& snapshot, const ReportCalendar& calendar,
                                  const AppFilter& apps) {
    std::vector<PeriodStat> years;
    years.reserve(snapshot->yearlyOKLabels.size());
    for (const std::string& label : snapshot->yearlyOKLabels) {
        years.push_back({label, PeriodSource::yearlyReport,
                         reportRows(snapshot, ReportFrequency::yearly, label, apps).aggregate()});
    }
    const SalesRows& rows = snapshot->salesRows;
    std::map<std::string_view, StatsAccumulator> sums;
    dailyRowsOfOtherYears(snapshot, apps)
        .forEachSection(
            [&rows](std::size_t chunk) { return std::optional(yearOf(*rows.reportDate(chunk))); },
            [&sums](std::string_view year, const std::vector<OfferSum>& lines) { sums[year].add(lines); });
    const std::string thisYear = calendar.currentYearLabel();
    for (const auto& [year, sum] : sums) {
        years.push_back({std::string(year),
                         year == thisYear ? PeriodSource::yearToDate : PeriodSource::dailyReports,
                         sum.stats(rows.currencies())});
    }
    std::erase_if(years, [](const PeriodStat& year) { return year.stats.isEmpty(); });
    std::ranges::stable_sort(years, std::ranges::greater(), &PeriodStat::label);
    return years;
}

}  // namespace vantrell
