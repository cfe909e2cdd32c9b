#include "screens/components/MonthGrid.h"

#include "calendar/DayKey.h"
#include "figures/Trends.h"
#include "screens/components/ShownText.h"

#include <algorithm>

namespace vantrell {
namespace {

constexpr int daysOfWeek = 7;
constexpr int shownDays = 6 * daysOfWeek;

CivilDate firstOfMonth(CivilDate day) {
    return day.year() / day.month() / 1;
}

CivilDate after(CivilDate day, int days) {
    return std::chrono::sys_days(day) + std::chrono::days(days);
}

}  // namespace

MonthGrid::MonthGrid(const Locale& locale, QObject* parent)
    : QObject(parent),
      locale_(locale),
      chosen_(std::chrono::sys_days()),
      cursor_(chosen_),
      today_(chosen_),
      limits_{std::nullopt, chosen_} {}

void MonthGrid::open(CivilDate chosen, const DayLimits& limits, CivilDate today) {
    chosen_ = chosen;
    limits_ = limits;
    today_ = today;
    moveTo(chosen);
}

QString MonthGrid::title() const {
    return fromUtf8(locale_.monthYear(cursor_));
}

QStringList MonthGrid::weekdays() const {
    QStringList names;
    const CivilDate first = trendPeriodStart(chosen_, TrendGranularity::week, locale_.firstWeekday());
    for (int day = 0; day < daysOfWeek; ++day) {
        names += fromUtf8(locale_.shortWeekday(after(first, day)));
    }
    return names;
}

QString MonthGrid::cursorText() const {
    return fromUtf8(locale_.wideWeekdayDate(cursor_));
}

bool MonthGrid::hasPrevious() const {
    return !limits_.earliest || firstOfMonth(*limits_.earliest) < firstOfMonth(cursor_);
}

bool MonthGrid::hasNext() const {
    return firstOfMonth(cursor_) < firstOfMonth(limits_.latest);
}

void MonthGrid::moveByDays(int days) {
    moveTo(movedByDays(cursor_, days));
}

void MonthGrid::moveByMonths(int months) {
    moveTo(movedByMonths(cursor_, months));
}

void MonthGrid::pick(int place) {
    const CivilDate day = after(firstShown(), place);
    if (place >= 0 && place < shownDays && isAllowed(day)) {
        Q_EMIT picked(day);
    }
}

void MonthGrid::moveTo(std::optional<CivilDate> day) {
    const CivilDate earliest = limits_.earliest.value_or(std::chrono::year(1) / 1 / 1);
    cursor_ = std::clamp(day.value_or(cursor_), std::min(earliest, limits_.latest), limits_.latest);
    std::vector<MonthDay> days;
    days.reserve(shownDays);
    const CivilDate first = firstShown();
    for (int place = 0; place < shownDays; ++place) {
        days.push_back(monthDay(after(first, place)));
    }
    days_.show(days);
    Q_EMIT changed();
}

bool MonthGrid::isAllowed(CivilDate day) const {
    return day <= limits_.latest && (!limits_.earliest || day >= *limits_.earliest);
}

CivilDate MonthGrid::firstShown() const {
    return trendPeriodStart(firstOfMonth(cursor_), TrendGranularity::week, locale_.firstWeekday());
}

MonthDay MonthGrid::monthDay(CivilDate day) const {
    return {.text = fromUtf8(locale_.count(static_cast<unsigned>(day.day()))),
            .spoken = fromUtf8(locale_.wideWeekdayDate(day)),
            .isInMonth = firstOfMonth(day) == firstOfMonth(cursor_),
            .isEnabled = isAllowed(day),
            .isChosen = day == chosen_,
            .isToday = day == today_,
            .hasCursor = day == cursor_};
}

}  // namespace vantrell
