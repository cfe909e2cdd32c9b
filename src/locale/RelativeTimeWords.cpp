#include "RelativeTimeWords.h"

#include "IcuText.h"

namespace vantrell {
namespace {

URelativeDateTimeUnit unitOf(RelativeTime::Unit unit) {
    switch (unit) {
        case RelativeTime::Unit::second:
            return UDAT_REL_UNIT_SECOND;
        case RelativeTime::Unit::minute:
            return UDAT_REL_UNIT_MINUTE;
        case RelativeTime::Unit::hour:
            return UDAT_REL_UNIT_HOUR;
        case RelativeTime::Unit::day:
            return UDAT_REL_UNIT_DAY;
        case RelativeTime::Unit::week:
            return UDAT_REL_UNIT_WEEK;
        case RelativeTime::Unit::month:
            return UDAT_REL_UNIT_MONTH;
        case RelativeTime::Unit::year:
            return UDAT_REL_UNIT_YEAR;
    }
    return UDAT_REL_UNIT_SECOND;
}

}  // namespace

RelativeTimeWords::RelativeTimeWords(const icu::Locale& locale) : RelativeTimeWords(locale, U_ZERO_ERROR) {}

RelativeTimeWords::RelativeTimeWords(const icu::Locale& locale, UErrorCode status)
    : format_(locale, nullptr, UDAT_STYLE_LONG, UDISPCTX_CAPITALIZATION_NONE, status) {
    requireLocaleData(status);
}

std::string RelativeTimeWords::text(const RelativeTime& time) const {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    if (time.isOnCalendar) {
        format_.format(time.count, unitOf(time.unit), text, status);
    } else {
        format_.formatNumeric(time.count, unitOf(time.unit), text, status);
    }
    return U_SUCCESS(status) ? utf8(text) : std::string();
}

}  // namespace vantrell
