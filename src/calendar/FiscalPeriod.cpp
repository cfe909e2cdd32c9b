#include "calendar/FiscalPeriod.h"

#include "calendar/ReportSchedule.h"

#include <limits>

namespace vantrell {
namespace {

constexpr std::int64_t earliestYear = 2001;

}  // namespace

std::string fiscalPeriod(CivilDate pacificDay) {
    const int year = static_cast<int>(pacificDay.year());
    const auto month = static_cast<unsigned>(pacificDay.month());
    return yearMonthText({month > 9 ? year + 1 : year, (month + 2) % 12 + 1});
}

std::optional<YearMonth> parseFiscalPeriod(std::string_view text) {
    const auto period = parseYearMonth(text);
    return period && period->year >= earliestYear ? period : std::nullopt;
}

std::string nextFiscalPeriod(std::string_view text) {
    const auto period = parseFiscalPeriod(text);
    if (!period || period->year == std::numeric_limits<std::int64_t>::max()) {
        return std::string(text);
    }
    return period->month == 12 ? yearMonthText({period->year + 1, 1})
                               : yearMonthText({period->year, period->month + 1});
}

std::vector<std::string> fiscalPeriods(std::string_view from, std::string_view through) {
    std::vector<std::string> periods;
    if (!parseFiscalPeriod(from) || !parseFiscalPeriod(through)) {
        return periods;
    }
    for (std::string period(from); period <= through && periods.size() < maxFiscalPeriods;
         period = nextFiscalPeriod(period)) {
        periods.push_back(period);
    }
    return periods;
}

}  // namespace vantrell
