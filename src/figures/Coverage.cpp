#include "figures/Coverage.h"

#include "calendar/DayKey.h"
#include "calendar/ReportSchedule.h"

#include <algorithm>

namespace vantrell {

DayCounts dayCounts(const Snapshot& snapshot, const std::string& from, const std::string& to) {
    DayCounts counts;
    for (const KeyedDay& day : days(from, to)) {
        const ReportStatus status = snapshot.dailyStatus(day.key);
        ++counts.days;
        counts.known += isKnown(status) ? 1 : 0;
        counts.failed += status == ReportStatus::error ? 1 : 0;
        counts.missing += status == ReportStatus::missing ? 1 : 0;
    }
    return counts;
}

std::vector<CoveredDay> coveredDays(const Snapshot& snapshot, const ReportCalendar& calendar) {
    std::vector<CoveredDay> covered;
    covered.reserve(daysOfBackfill);
    for (const KeyedDay& day : days(calendar.dayKey(daysOfBackfill), calendar.dayKey(1))) {
        covered.push_back({day.day, snapshot.dailyStatus(day.key)});
    }
    return covered;
}

bool Coverage::isWhole() const {
    return days.failed == 0 && days.missing == 0 && knownMonths == monthsOfBackfill;
}

Coverage coverage(const Snapshot& snapshot, const ReportCalendar& calendar) {
    Coverage coverage{.days = dayCounts(snapshot, calendar.dayKey(daysOfBackfill), calendar.dayKey(1)),
                      .years = static_cast<int>(snapshot.yearlyOKLabels.size()),
                      .payoutPeriods = static_cast<int>(snapshot.financeOKLabels.size())};
    for (int monthsAgo = 1; monthsAgo <= monthsOfBackfill; ++monthsAgo) {
        const std::string month = calendar.monthKey(monthsAgo);
        const auto isAmong = [&month](const std::vector<std::string>& labels) {
            return std::ranges::binary_search(labels, month);
        };
        coverage.knownMonths += isAmong(snapshot.monthlyOKLabels) || isAmong(snapshot.emptyMonths) ? 1 : 0;
    }
    return coverage;
}

}  // namespace vantrell
