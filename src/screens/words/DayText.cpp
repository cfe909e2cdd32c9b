#include "screens/words/DayText.h"

#include "calendar/DayKey.h"
#include "calendar/YearMonth.h"
#include "screens/components/ShownText.h"

#include <QCoreApplication>

namespace vantrell {

QString dayShortText(const ReportCalendar& calendar, const Locale& locale, const std::string& key) {
    if (key == calendar.dayKey(1)) {
        return QCoreApplication::translate("DayText", "Yesterday");
    }
    const auto day = dateFromDayKey(key);
    return day ? fromUtf8(locale.weekdayMonthDay(*day)) : shownText(key);
}

QString dayTitle(const Locale& locale, std::string_view key) {
    const auto day = dateFromDayKey(key);
    return day ? fromUtf8(locale.wideWeekdayDate(*day)) : shownText(key);
}

QString monthKeyLabel(const Locale& locale, std::string_view key) {
    const auto month = parseYearMonth(key);
    const bool isInCalendar = month && month->year >= 1 && month->year <= 9999;
    if (!isInCalendar) {
        return shownText(key);
    }
    return fromUtf8(locale.shortMonthYear(std::chrono::year(static_cast<int>(month->year)) /
                                          static_cast<int>(month->month) / 1));
}

}  // namespace vantrell
