#include "screens/charts/TimeTicks.h"

#include "screens/components/ShownText.h"

#include <algorithm>
#include <initializer_list>

namespace vantrell {
namespace {

// No window has room for more.
constexpr std::size_t mostTicks = 40;
// Longer ranges are easier to read by month.
constexpr std::size_t mostDays = 100;
constexpr std::size_t mostWeeks = 16;
constexpr int monthsOfYear = 12;

int monthNumber(CivilDate day) {
    return static_cast<int>(day.year()) * monthsOfYear +
           static_cast<int>(static_cast<unsigned>(day.month())) - 1;
}

/// Every `stride`-th column, the newest among them.
TimeTicks dateTicks(const std::vector<CivilDate>& starts, std::size_t stride, const Locale& locale) {
    TimeTicks ticks;
    for (std::size_t column = (starts.size() - 1) % stride; column < starts.size(); column += stride) {
        ticks.push_back({column, fromUtf8(locale.monthDay(starts[column]))});
    }
    return ticks;
}

/// The columns with which a month begins.
std::vector<std::size_t> monthColumns(const std::vector<CivilDate>& starts, TrendGranularity granularity) {
    std::vector<std::size_t> columns;
    for (std::size_t column = 0; column < starts.size(); ++column) {
        const bool isFirst = column == 0;
        const bool begins =
            isFirst ? granularity == TrendGranularity::month || starts[0].day() == std::chrono::day(1)
                    : starts[column].month() != starts[column - 1].month();
        if (begins) {
            columns.push_back(column);
        }
    }
    return columns;
}

TimeTicks monthTicks(const std::vector<CivilDate>& starts, const std::vector<std::size_t>& columns,
                     int stride, const Locale& locale) {
    TimeTicks ticks;
    for (const std::size_t column : columns) {
        const CivilDate start = starts[column];
        if (monthNumber(start) % stride == 0) {
            const bool tellsYear = ticks.empty() || start.month() == std::chrono::January;
            ticks.push_back(
                {column, fromUtf8(tellsYear ? locale.shortMonthYear(start) : locale.shortMonth(start))});
        }
    }
    return ticks;
}

bool isByDate(std::size_t columns, TrendGranularity granularity) {
    return (granularity == TrendGranularity::day && columns <= mostDays) ||
           (granularity == TrendGranularity::week && columns <= mostWeeks);
}

}  // namespace

std::vector<TimeTicks> timeTicks(const std::vector<CivilDate>& starts, TrendGranularity granularity,
                                 const Locale& locale) {
    std::vector<TimeTicks> levels;
    if (isByDate(starts.size(), granularity)) {
        for (const std::size_t stride : {1U, 2U, 7U, 14U, 28U}) {
            if (!starts.empty() && starts.size() <= stride * mostTicks) {
                levels.push_back(dateTicks(starts, stride, locale));
            }
        }
        return levels;
    }
    const std::vector<std::size_t> columns = monthColumns(starts, granularity);
    for (const int stride : {1, 2, 3, 6, 12, 24, 60, 120, 240, 600}) {
        if (columns.size() <= static_cast<std::size_t>(stride) * mostTicks) {
            levels.push_back(monthTicks(starts, columns, stride, locale));
        }
    }
    std::erase_if(levels, [](const TimeTicks& ticks) { return ticks.empty(); });
    return levels;
}

}  // namespace vantrell
