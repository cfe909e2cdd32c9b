#include "figures/Periods.h"

#include "StatsAccumulator.h"
#include "figures/SalesSelection.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace vantrell {
namespace {

constexpr int finishedMonths = 12;

}  // namespace

std::vector<PeriodStat> monthStats(const SharedSnapshot& snapshot, const ReportCalendar& calendar,
                                   const AppFilter& apps) {
    const std::string thisMonth = calendar.monthKey(0);
    std::vector<PeriodStat> months{
        {thisMonth, PeriodSource::monthToDate,
         dailyRows(snapshot, thisMonth + "-01", calendar.dayKey(1), apps).aggregate()}};
    for (int monthsAgo = 1; monthsAgo <= finishedMonths; ++monthsAgo) {
        const std::string month = calendar.monthKey(monthsAgo);
        months.push_back({month, PeriodSource::monthlyReport,
                          reportRows(snapshot, ReportFrequency::monthly, month, apps).aggregate()});
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
    laterDailyRows(snapshot, apps)
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
