#include "figures/Trend.h"

#include <algorithm>

namespace vantrell {

CivilDate trendPeriodStart(CivilDate day, TrendGranularity granularity, std::chrono::weekday firstWeekday) {
    using std::chrono::sys_days;
    switch (granularity) {
        case TrendGranularity::day:
            break;
        case TrendGranularity::week:
            return sys_days(day) - (std::chrono::weekday(sys_days(day)) - firstWeekday);
        case TrendGranularity::month:
            return day.year() / day.month() / 1;
    }
    return day;
}

ReportStatus combinedStatus(const std::vector<ReportStatus>& statuses) {
    using enum ReportStatus;
    for (const ReportStatus status : {ok, empty, pending}) {
        if (std::ranges::find(statuses, status) != statuses.end()) {
            return status;
        }
    }
    return statuses.empty() ? missing : statuses.front();
}

}  // namespace vantrell
