#include "figures/EarningsStore.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

// Figures by month and year.

namespace vantrell {
namespace {

constexpr int finishedMonths = 12;

}  // namespace

std::vector<PeriodStat> EarningsStore::monthStats(const AppFilter& apps) const {
    const std::string thisMonth = calendar_.monthKey(0);
    std::vector<PeriodStat> months{{thisMonth, "From daily reports · MTD",
                                    dailyRows(thisMonth + "-01", calendar_.dayKey(1), apps).aggregate()}};
    for (int monthsAgo = 1; monthsAgo <= finishedMonths; ++monthsAgo) {
        const std::string month = calendar_.monthKey(monthsAgo);
        months.push_back(
            {month, "Monthly report", reportRows(ReportFrequency::monthly, month, apps).aggregate()});
    }
    return months;
}

std::vector<PeriodStat> EarningsStore::yearStats(const AppFilter& apps) const {
    std::vector<PeriodStat> years;
    years.reserve(yearlyOKLabels_.size());
    for (const std::string& label : yearlyOKLabels_) {
        years.push_back(
            {label, "Yearly report", reportRows(ReportFrequency::yearly, label, apps).aggregate()});
    }
    std::map<std::string_view, StatsAccumulator> sums;
    SalesSelection(salesRows_, {salesRows_.dailySpanAfterYear(lastYearlyLabel())}, offerMask(apps))
        .forEachSection(
            [this](std::size_t chunk) { return std::optional(yearOf(*reportDate(chunk))); },
            [&sums](std::string_view year, const std::vector<OfferSum>& lines) { sums[year].add(lines); });
    const std::string thisYear = calendar_.currentYearLabel();
    for (const auto& [year, sum] : sums) {
        years.push_back({std::string(year),
                         year == thisYear ? "From daily reports · YTD" : "From daily reports",
                         sum.stats(salesRows_.currencies())});
    }
    std::erase_if(years, [](const PeriodStat& year) { return year.stats.isEmpty(); });
    std::ranges::stable_sort(years, std::ranges::greater(), &PeriodStat::label);
    return years;
}

}  // namespace vantrell
