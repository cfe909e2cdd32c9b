#include "platform/Locale.h"

#include "platform/PosixLocale.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <mutex>
#include <stdexcept>

#include <unicode/calendar.h>
#include <unicode/coll.h>
#include <unicode/dtitvfmt.h>
#include <unicode/dtptngen.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/ucurr.h>

namespace vantrell {
namespace {

using icu::number::LocalizedNumberFormatter;

std::string utf8(const icu::UnicodeString& text) {
    std::string result;
    return text.toUTF8String(result);
}

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// Only a broken installation of the library comes here.
void require(UErrorCode status) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(std::string("locale data can't be read: ") + u_errorName(status));
    }
}

/// Ready formats for dates in UTC, with the parts of `skeleton` in the locale's order.
std::unique_ptr<const icu::DateFormat> dateFormat(icu::Locale locale, const char* skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    require(status);
    const auto pattern = patterns->getBestPattern(icu::UnicodeString::fromUTF8(skeleton), status);
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
    require(status);
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

std::unique_ptr<const icu::DateIntervalFormat> rangeFormat(icu::Locale locale, const char* skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    std::unique_ptr<icu::DateIntervalFormat> format(
        icu::DateIntervalFormat::createInstance(icu::UnicodeString::fromUTF8(skeleton), locale, status));
    require(status);
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

std::chrono::weekday startOfWeek(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
    require(status);
    const auto first = calendar->getFirstDayOfWeek(status);
    require(status);
    return std::chrono::weekday(static_cast<unsigned>(first - UCAL_SUNDAY));
}

std::unique_ptr<const icu::Collator> nameOrder(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(locale, status));
    require(status);
    // The level below tells upper from lower case.
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

std::string dateText(const icu::DateFormat& format, std::chrono::milliseconds wallTime) {
    icu::UnicodeString text;
    return utf8(format.format(static_cast<UDate>(wallTime.count()), text));
}

/// Midnight in UTC.
UDate startOf(CivilDate day) {
    const std::chrono::milliseconds time = std::chrono::sys_days(day).time_since_epoch();
    return static_cast<UDate>(time.count());
}

/// Whether `code` is or once was a currency. The library would also take lower case and "no currency".
bool isCurrency(std::string_view code) {
    if (code.size() != 3 || code == "XXX" ||
        !std::ranges::all_of(code, [](char letter) { return letter >= 'A' && letter <= 'Z'; })) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    constexpr UDate ever = std::numeric_limits<UDate>::max();
    return ucurr_isAvailable(icu::UnicodeString::fromUTF8(piece(code)).getTerminatedBuffer(), -ever, ever,
                             &status) != 0;
}

/// Amounts by currency. To make a format takes long, so each is kept.
class MoneyFormats {
  public:
    explicit MoneyFormats(const icu::Locale& locale)
        : base_(icu::number::NumberFormatter::withLocale(locale)
                    .roundingMode(UNUM_ROUND_HALFUP)
                    .sign(UNUM_SIGN_NEGATIVE)),
          plain_(base_.precision(icu::number::Precision::fixedFraction(2))) {}

    /// `currency` must be a known one.
    [[nodiscard]] std::string money(const std::string& amount, std::string_view currency) const {
        const std::scoped_lock lock(mutex_);
        auto known = byCurrency_.find(currency);
        if (known == byCurrency_.end()) {
            known = byCurrency_.emplace(currency, formatOf(currency)).first;
        }
        return text(known->second, amount);
    }
    [[nodiscard]] std::string number(const std::string& amount) const { return text(plain_, amount); }

  private:
    [[nodiscard]] LocalizedNumberFormatter formatOf(std::string_view currency) const {
        UErrorCode status = U_ZERO_ERROR;
        const icu::CurrencyUnit unit(piece(currency), status);
        require(status);
        return base_.unit(unit).precision(icu::number::Precision::currency(UCURR_USAGE_STANDARD));
    }

    static std::string text(const LocalizedNumberFormatter& format, const std::string& amount) {
        UErrorCode status = U_ZERO_ERROR;
        const auto shown = format.formatDecimal(piece(amount), status).toString(status);
        return U_SUCCESS(status) ? utf8(shown) : amount;
    }

    LocalizedNumberFormatter base_;
    LocalizedNumberFormatter plain_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, LocalizedNumberFormatter, std::less<>> byCurrency_;
};

}  // namespace

struct Locale::Formats {
    icu::Locale monetary;
    MoneyFormats money;
    LocalizedNumberFormatter count;
    std::unique_ptr<const icu::DateFormat> dateAndTime;
    std::unique_ptr<const icu::DateFormat> weekdayMonthDay;
    std::unique_ptr<const icu::DateFormat> monthYear;
    std::unique_ptr<const icu::DateIntervalFormat> dayRange;
    std::chrono::weekday firstWeekday;
    std::unique_ptr<const icu::Collator> names;

    explicit Formats(const LocaleNames& posix)
        : monetary(icuLocale(posix.monetary)),
          money(monetary),
          count(icu::number::NumberFormatter::withLocale(icuLocale(posix.numeric))),
          dateAndTime(dateFormat(icuLocale(posix.time), "yMMMdjmm")),
          weekdayMonthDay(dateFormat(icuLocale(posix.time), "EEEMMMd")),
          monthYear(dateFormat(icuLocale(posix.time), "yMMMM")),
          dayRange(rangeFormat(icuLocale(posix.time), "yMMMd")),
          firstWeekday(startOfWeek(icuLocale(posix.time))),
          names(nameOrder(icuLocale(posix.collate))) {}
};

Locale::Locale(const LocaleNames& names) : formats_(std::make_unique<const Formats>(names)) {}

Locale::~Locale() = default;

std::optional<std::string> Locale::currencyCode() const {
    std::array<UChar, 4> code{};
    UErrorCode status = U_ZERO_ERROR;
    ucurr_forLocale(formats_->monetary.getName(), code.data(), static_cast<std::int32_t>(code.size()),
                    &status);
    const auto text = utf8(icu::UnicodeString(code.data()));
    return U_SUCCESS(status) && isCurrency(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::string> Locale::regionCode() const {
    const std::string region = formats_->monetary.getCountry();
    return region.empty() ? std::nullopt : std::optional(region);
}

std::string Locale::money(const Decimal& amount, std::string_view currency) const {
    if (isCurrency(currency)) {
        return formats_->money.money(amount.text(), currency);
    }
    const auto number = formats_->money.number(amount.text());
    return currency.empty() ? number : std::string(currency) + "\u00A0" + number;
}

std::string Locale::count(std::int64_t value) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = formats_->count.formatInt(value, status).toString(status);
    return U_SUCCESS(status) ? utf8(text) : std::to_string(value);
}

std::string Locale::dateAndTime(Instant instant, const TimeZone& zone) const {
    const auto time = std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch());
    return dateText(*formats_->dateAndTime, time + zone.offsetAt(instant));
}

std::string Locale::weekdayMonthDay(CivilDate day) const {
    return dateText(*formats_->weekdayMonthDay, std::chrono::sys_days(day).time_since_epoch());
}

std::string Locale::dayRange(CivilDate first, CivilDate last) const {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateInterval range(startOf(first), startOf(last));
    icu::FieldPosition position(icu::FieldPosition::DONT_CARE);
    icu::UnicodeString text;
    formats_->dayRange->format(&range, text, position, status);
    return U_SUCCESS(status) ? utf8(text) : std::string();
}

std::string Locale::monthYear(CivilDate day) const {
    return dateText(*formats_->monthYear, std::chrono::sys_days(day).time_since_epoch());
}

std::chrono::weekday Locale::firstWeekday() const {
    return formats_->firstWeekday;
}

int Locale::compareNames(std::string_view left, std::string_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return formats_->names->compareUTF8(piece(left), piece(right), status);
}

LocaleNames LocaleNames::fromEnvironment(
    const std::function<std::optional<std::string>(const char*)>& variable) {
    const auto nameFor = [&variable](const char* category) {
        for (const char* name : {"LC_ALL", category, "LANG"}) {
            if (auto value = variable(name); value && !value->empty()) {
                return *std::move(value);
            }
        }
        return std::string("C");
    };
    return {nameFor("LC_MONETARY"), nameFor("LC_TIME"), nameFor("LC_NUMERIC"), nameFor("LC_COLLATE"),
            nameFor("LC_MESSAGES")};
}

}  // namespace vantrell
