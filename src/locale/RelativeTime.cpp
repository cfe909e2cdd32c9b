#include "RelativeTime.h"

#include <algorithm>

namespace vantrell {
namespace {

using Unit = RelativeTime::Unit;

RelativeTime byTheClock(Instant first, Instant last) {
    const auto passed = std::chrono::floor<std::chrono::seconds>(last - first);
    if (passed >= std::chrono::hours(1)) {
        return {Unit::hour, static_cast<int>(passed / std::chrono::hours(1)), true};
    }
    if (passed >= std::chrono::minutes(1)) {
        return {Unit::minute, static_cast<int>(passed / std::chrono::minutes(1)), true};
    }
    return {Unit::second, static_cast<int>(passed.count()), true};
}

std::chrono::year_month monthOf(CivilDate day) {
    return day.year() / day.month();
}

std::chrono::sys_days weekOf(CivilDate day, std::chrono::weekday firstWeekday) {
    const std::chrono::sys_days date(day);
    return date - (std::chrono::weekday(date) - firstWeekday);
}

RelativeTime byTheCalendar(CivilDate first, CivilDate last, std::chrono::weekday firstWeekday) {
    const int days = static_cast<int>((std::chrono::sys_days(last) - std::chrono::sys_days(first)).count());
    const int turnsOfMonth = static_cast<int>((monthOf(last) - monthOf(first)).count());
    const int months = last.day() < first.day() ? turnsOfMonth - 1 : turnsOfMonth;
    if (const int years = months / 12; years > 0) {
        return {Unit::year, years, (last.year() - first.year()).count() == years};
    }
    if (months > 0) {
        return {Unit::month, months, turnsOfMonth == months};
    }
    if (const int weeks = days / 7; weeks > 0) {
        const auto turnsOfWeek = (weekOf(last, firstWeekday) - weekOf(first, firstWeekday)) / 7;
        return {Unit::week, weeks, turnsOfWeek.count() == weeks};
    }
    return {Unit::day, days, true};
}

}  // namespace

RelativeTime RelativeTime::between(Instant then, Instant now, const TimeZone& zone,
                                   std::chrono::weekday firstWeekday) {
    const auto [first, last] = std::minmax(then, now);
    const auto firstDay = zone.dateAt(first);
    const auto lastDay = zone.dateAt(last);
    // A day can have 25 hours.
    const bool isOneDay = last - first < std::chrono::hours(24) || firstDay == lastDay;
    auto result = isOneDay ? byTheClock(first, last) : byTheCalendar(firstDay, lastDay, firstWeekday);
    result.count = then < now ? -result.count : result.count;
    return result;
}

}  // namespace vantrell
