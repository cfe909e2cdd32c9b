#include "screens/charts/TimeTicks.h"

#include "screens/components/ShownText.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

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

// The year is told once a year, or else at the beginning.
TimeTicks monthTicks(const std::vector<CivilDate>& starts, const std::vector<std::size_t>& columns,
                     int stride, const Locale& locale) {
    std::vector<std::size_t> told;
    std::ranges::copy_if(columns, std::back_inserter(told),
                         [&](std::size_t column) { return monthNumber(starts[column]) % stride == 0; });
    const auto isJanuary = [&](std::size_t column) { return starts[column].month() == std::chrono::January; };
    const bool hasJanuary = std::ranges::any_of(told, isJanuary);
    TimeTicks ticks;
    for (const std::size_t column : told) {
        const bool tellsYear = hasJanuary ? isJanuary(column) : ticks.empty();
        ticks.push_back({column, fromUtf8(tellsYear ? locale.shortMonthYear(starts[column])
                                                    : locale.shortMonth(starts[column]))});
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
