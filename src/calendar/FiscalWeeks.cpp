#include "calendar/FiscalWeeks.h"

#include "calendar/FiscalPeriod.h"

#include <array>

namespace vantrell {
namespace {

using std::chrono::sys_days;
using std::chrono::weeks;

constexpr std::int64_t lastFiscalYear = 9999;
constexpr std::array weeksToMonthOfQuarter{5, 9, 13};
constexpr int monthWithExtraWeek = 3;

sys_days lastDayOfFiscalYear(int year) {
    return std::chrono::year(year) / std::chrono::September / std::chrono::Saturday[std::chrono::last];
}

}  // namespace

std::optional<CivilDate> lastDayOfFiscalPeriod(std::string_view period) {
    const auto parsed = parseFiscalPeriod(period);
    if (!parsed || parsed->year > lastFiscalYear) {
        return std::nullopt;
    }
    const int year = static_cast<int>(parsed->year);
    const int month = static_cast<int>(parsed->month);
    const sys_days before = lastDayOfFiscalYear(year - 1);
    const bool hasExtraWeek = lastDayOfFiscalYear(year) - before > weeks(52) && month >= monthWithExtraWeek;
    const int quarter = (month - 1) / 3;
    const int count = quarter * weeksToMonthOfQuarter.back() +
                      weeksToMonthOfQuarter.at(static_cast<std::size_t>(month - 1) % 3) +
                      (hasExtraWeek ? 1 : 0);
    return before + weeks(count);
}

}  // namespace vantrell
