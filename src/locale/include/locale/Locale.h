#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"
#include "base/LocalTime.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// The locales by category, each a POSIX name such as "de_DE.UTF-8", "C" or "ar_EG@currency=USD".
struct LocaleNames {
    std::string monetary;
    std::string time;
    std::string numeric;
    std::string collate;
    std::string messages;

    /// LC_ALL, else the category's own variable, else LANG, else "C"; an empty variable counts as unset.
    /// `variable` looks up one environment variable.
    [[nodiscard]] static LocaleNames fromEnvironment(
        const std::function<std::optional<std::string>(const char*)>& variable);
};

/// The user's conventions: how money, counts and dates are written and names are ordered. Locales are taken
/// by name, also where the C library has none of that name; a name without a known language, such as "C",
/// means plain English without a region. Immutable; texts are UTF-8.
class Locale {
  public:
    explicit Locale(const LocaleNames& names);
    ~Locale();
    Locale(const Locale&) = delete;
    Locale& operator=(const Locale&) = delete;

    /// ISO 4217 code of the monetary locale's region; absent for a locale without a region, such as "C".
    [[nodiscard]] std::optional<std::string> currencyCode() const;
    /// ISO 3166 code of the monetary locale's region, such as "DE"; absent as above.
    [[nodiscard]] std::optional<std::string> regionCode() const;
    /// BCP 47 tag of the messages locale, such as "de-DE".
    [[nodiscard]] std::string languageTag() const;
    /// The name of an ISO 3166 region in the messages locale; an unknown code as it is.
    [[nodiscard]] std::string regionName(std::string_view code) const;

    /// `amount` as money in `currency`, with the digits usual for that currency and rounded half away from
    /// zero, such as "$1,234.50". A code that is no currency stands before the amount as it is, and the
    /// amount has two digits then. What rounds to zero has no sign.
    [[nodiscard]] std::string money(const Decimal& amount, std::string_view currency) const;
    /// As `money` without fraction digits, such as "$1,235".
    [[nodiscard]] std::string wholeMoney(const Decimal& amount, std::string_view currency) const;
    /// As `money` with the currency's name after the amount, such as "1,234.50 US dollars".
    [[nodiscard]] std::string spokenMoney(const Decimal& amount, std::string_view currency) const;
    /// A short label for a step of an axis, such as "$1.2K", "€12", "$0.50" or "$0.025".
    [[nodiscard]] std::string compactMoney(double amount, std::string_view currency) const;
    /// A whole number with the locale's grouping.
    [[nodiscard]] std::string count(std::int64_t value) const;

    // Dates are Gregorian in every locale, as the reports are.

    /// "Nov 22, 2026, 10:02 PM"
    [[nodiscard]] std::string dateAndTime(Instant instant, const TimeZone& zone) const;
    /// "Mar 3, 10:02:05 AM"
    [[nodiscard]] std::string logTime(Instant instant, const TimeZone& zone) const;
    /// "yesterday", "2 hours ago", "in 3 minutes", "now": the distance as RelativeTime has it. The name of
    /// the next or last unit is used only where the calendar agrees, else it is "1 week ago".
    [[nodiscard]] std::string relativeTime(Instant then, Instant now, const TimeZone& zone) const;
    /// "Tuesday, Mar 3, 2026"
    [[nodiscard]] std::string wideWeekdayDate(CivilDate day) const;
    /// "Tue, Mar 3, 2026"
    [[nodiscard]] std::string weekdayDate(CivilDate day) const;
    /// "Tue, Mar 3"
    [[nodiscard]] std::string weekdayMonthDay(CivilDate day) const;
    /// "Mar 3, 2026"
    [[nodiscard]] std::string date(CivilDate day) const;
    /// "Mar 3"
    [[nodiscard]] std::string monthDay(CivilDate day) const;
    /// "March 2026"
    [[nodiscard]] std::string monthYear(CivilDate day) const;
    /// "Mar"
    [[nodiscard]] std::string shortMonth(CivilDate day) const;
    /// "Mar 2026": in every locale the short month, a blank and the year without grouping.
    [[nodiscard]] std::string shortMonthYear(CivilDate day) const;
    /// The weekday alone as the head of a narrow column, such as "Tu".
    [[nodiscard]] std::string shortWeekday(CivilDate day) const;
    /// Both days as by `date`, what they share written once, such as "Mar 2 – 8, 2026"; with the blanks that
    /// the locale puts around the dash.
    [[nodiscard]] std::string dayRange(CivilDate first, CivilDate last) const;
    /// On which day weeks begin, by the region of the time locale.
    [[nodiscard]] std::chrono::weekday firstWeekday() const;

    /// Orders names without regard to case, by the collation locale; below, above or equal to 0.
    [[nodiscard]] int compareNames(std::string_view left, std::string_view right) const;

  private:
    struct Formats;
    std::unique_ptr<const Formats> formats_;
};

}  // namespace vantrell
