#pragma once

#include "base/Instant.h"

#include <memory>
#include <string>

#include <unicode/datefmt.h>
#include <unicode/dtitvfmt.h>
#include <unicode/locid.h>

namespace vantrell {

/// A ready format for dates: Gregorian in every locale, as the reports are.
class DateForm {
  public:
    /// The parts of `skeleton` in the order and with the signs of the locale.
    [[nodiscard]] static DateForm ofParts(const icu::Locale& locale, const char* skeleton);
    /// Exactly `pattern`, with the locale's words and digits.
    [[nodiscard]] static DateForm ofPattern(const icu::Locale& locale, const char* pattern);

    [[nodiscard]] std::string text(CivilDate day) const;
    /// What a clock on the wall shows, as if that wall were in UTC.
    [[nodiscard]] std::string text(std::chrono::milliseconds wallTime) const;

  private:
    explicit DateForm(std::unique_ptr<const icu::DateFormat> format) : format_(std::move(format)) {}
    std::unique_ptr<const icu::DateFormat> format_;
};

/// The forms in which a locale writes dates; each member is named after the method of Locale that gives it.
struct DateFormats {
    explicit DateFormats(const icu::Locale& locale);

    [[nodiscard]] std::string dayRange(CivilDate first, CivilDate last) const;

    DateForm dateAndTime;
    DateForm logTime;
    DateForm wideWeekdayDate;
    DateForm weekdayDate;
    DateForm weekdayMonthDay;
    DateForm date;
    DateForm monthDay;
    DateForm monthYear;
    DateForm shortMonth;
    DateForm shortMonthYear;
    DateForm shortWeekday;
    std::unique_ptr<const icu::DateIntervalFormat> range;
    std::chrono::weekday firstWeekday;
};

}  // namespace vantrell
