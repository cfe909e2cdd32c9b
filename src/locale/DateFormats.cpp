#include "DateFormats.h"

#include "IcuText.h"

#include <unicode/calendar.h>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

namespace vantrell {
namespace {

icu::Locale gregorian(icu::Locale locale) {
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    requireLocaleData(status);
    return locale;
}

std::unique_ptr<const icu::DateFormat> formatOf(const icu::Locale& locale,
                                                const icu::UnicodeString& pattern) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, gregorian(locale), status);
    requireLocaleData(status);
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

std::unique_ptr<const icu::DateIntervalFormat> rangeOf(const icu::Locale& locale, const char* skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateIntervalFormat> format(icu::DateIntervalFormat::createInstance(
        icu::UnicodeString::fromUTF8(skeleton), gregorian(locale), status));
    requireLocaleData(status);
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

std::chrono::weekday startOfWeek(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
    requireLocaleData(status);
    const auto first = calendar->getFirstDayOfWeek(status);
    requireLocaleData(status);
    return std::chrono::weekday(static_cast<unsigned>(first - UCAL_SUNDAY));
}

/// Midnight in UTC.
UDate startOf(CivilDate day) {
    const std::chrono::milliseconds time = std::chrono::sys_days(day).time_since_epoch();
    return static_cast<UDate>(time.count());
}

}  // namespace

DateForm DateForm::ofParts(const icu::Locale& locale, const char* skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(gregorian(locale), status));
    requireLocaleData(status);
    const auto pattern = patterns->getBestPattern(icu::UnicodeString::fromUTF8(skeleton), status);
    requireLocaleData(status);
    return DateForm(formatOf(locale, pattern));
}

DateForm DateForm::ofPattern(const icu::Locale& locale, const char* pattern) {
    return DateForm(formatOf(locale, icu::UnicodeString::fromUTF8(pattern)));
}

std::string DateForm::text(CivilDate day) const {
    return text(std::chrono::sys_days(day).time_since_epoch());
}

std::string DateForm::text(std::chrono::milliseconds wallTime) const {
    icu::UnicodeString text;
    return utf8(format_->format(static_cast<UDate>(wallTime.count()), text));
}

DateFormats::DateFormats(const icu::Locale& locale)
    : dateAndTime(DateForm::ofParts(locale, "yMMMdjmm")),
      logTime(DateForm::ofParts(locale, "MMMdjmmss")),
      wideWeekdayDate(DateForm::ofParts(locale, "yMMMEEEEd")),
      weekdayDate(DateForm::ofParts(locale, "yMMMEEEd")),
      weekdayMonthDay(DateForm::ofParts(locale, "EEEMMMd")),
      date(DateForm::ofParts(locale, "yMMMd")),
      monthDay(DateForm::ofParts(locale, "MMMd")),
      monthYear(DateForm::ofParts(locale, "yMMMM")),
      shortMonth(DateForm::ofPattern(locale, "LLL")),
      shortMonthYear(DateForm::ofPattern(locale, "LLL y")),
      shortWeekday(DateForm::ofPattern(locale, "cccccc")),
      range(rangeOf(locale, "yMMMd")),
      firstWeekday(startOfWeek(locale)) {}

std::string DateFormats::dayRange(CivilDate first, CivilDate last) const {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateInterval days(startOf(first), startOf(last));
    icu::FieldPosition position(icu::FieldPosition::DONT_CARE);
    icu::UnicodeString text;
    range->format(&days, text, position, status);
    return U_SUCCESS(status) ? utf8(text) : std::string();
}

}  // namespace vantrell
