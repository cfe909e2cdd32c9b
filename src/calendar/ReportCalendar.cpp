#include "calendar/ReportCalendar.h"

#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"

namespace vantrell {

ReportCalendar::ReportCalendar(const Clock& clock, const LocalTime& localTime)
    : clock_(&clock), localTime_(&localTime), pacific_(TimeZone::named("America/Los_Angeles")) {}

CivilDate ReportCalendar::today() const {
    return dateAt(clock_->now());
}

CivilDate ReportCalendar::dateAt(Instant instant) const {
    return localTime_->zone().dateAt(instant);
}

std::optional<CivilDate> ReportCalendar::dateDaysAgo(int days) const {
    return movedByDays(today(), -std::int64_t{days});
}

std::optional<CivilDate> ReportCalendar::dateMonthsAgo(int months) const {
    return movedByMonths(today(), -std::int64_t{months});
}

std::string ReportCalendar::dayKey(int daysAgo) const {
    return vantrell::dayKey(dateDaysAgo(daysAgo).value_or(today()));
}

std::string ReportCalendar::monthKey(int monthsAgo) const {
    return vantrell::monthKey(dateMonthsAgo(monthsAgo).value_or(today()));
}

int ReportCalendar::currentYear() const {
    return static_cast<int>(today().year());
}

std::string ReportCalendar::currentYearLabel() const {
    return yearLabel(today());
}

CivilDate ReportCalendar::pacificDateAt(Instant instant) const {
    return (pacific_ ? *pacific_ : localTime_->zone()).dateAt(instant);
}

std::string ReportCalendar::fiscalPeriodAt(Instant instant) const {
    return fiscalPeriod(pacificDateAt(instant));
}

std::string ReportCalendar::currentFiscalPeriod() const {
    return fiscalPeriodAt(clock_->now());
}

}  // namespace vantrell
