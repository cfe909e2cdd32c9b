#pragma once

#include "platform/Decimal.h"
#include "platform/Instant.h"
#include "platform/LocalTime.h"

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

    /// `amount` as money in `currency`, with the digits usual for that currency and rounded half away from
    /// zero, such as "$1,234.50". A code that is no currency stands before the amount as it is, and the
    /// amount has two digits then. What rounds to zero has no sign.
    [[nodiscard]] std::string money(const Decimal& amount, std::string_view currency) const;
    /// A whole number with the locale's grouping.
    [[nodiscard]] std::string count(std::int64_t value) const;
    /// Abbreviated date and short time, such as "Nov 22, 2026, 10:02 PM". Dates are Gregorian in every
    /// locale, as the reports are.
    [[nodiscard]] std::string dateAndTime(Instant instant, const TimeZone& zone) const;
    /// Abbreviated weekday, month and day, such as "Tue, Mar 3".
    [[nodiscard]] std::string weekdayMonthDay(CivilDate day) const;
    /// Both days with abbreviated month and year, what they share written once, such as "Mar 2 – 8, 2026";
    /// with the blanks that the locale puts around the dash.
    [[nodiscard]] std::string dayRange(CivilDate first, CivilDate last) const;
    /// Such as "March 2026".
    [[nodiscard]] std::string monthYear(CivilDate day) const;
    /// On which day weeks begin, by the region of the time locale.
    [[nodiscard]] std::chrono::weekday firstWeekday() const;

    /// Orders names without regard to case, by the collation locale; below, above or equal to 0.
    [[nodiscard]] int compareNames(std::string_view left, std::string_view right) const;

  private:
    struct Formats;
    std::unique_ptr<const Formats> formats_;
};

}  // namespace vantrell
