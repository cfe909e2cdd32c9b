#include "locale/Locale.h"

#include "DateFormats.h"
#include "IcuText.h"
#include "MoneyFormats.h"
#include "PosixLocale.h"
#include "RelativeTimeWords.h"

#include <algorithm>
#include <array>

#include <unicode/coll.h>
#include <unicode/locdspnm.h>
#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>

namespace vantrell {
namespace {

std::unique_ptr<const icu::Collator> nameOrder(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(locale, status));
    requireLocaleData(status);
    // The level below tells upper from lower case.
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

/// The form of ISO 3166, without the code that stands for "unknown".
bool isRegionCode(std::string_view code) {
    return code.size() == 2 && code != "ZZ" &&
           std::ranges::all_of(code, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

std::chrono::milliseconds wallTime(Instant instant, const TimeZone& zone) {
    return std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch()) + zone.offsetAt(instant);
}

}  // namespace

struct Locale::Formats {
    icu::Locale monetary;
    icu::Locale messages;
    MoneyFormats money;
    icu::number::LocalizedNumberFormatter count;
    DateFormats dates;
    RelativeTimeWords relativeTimes;
    std::unique_ptr<const icu::LocaleDisplayNames> names;
    std::unique_ptr<const icu::Collator> order;

    explicit Formats(const LocaleNames& posix)
        : monetary(icuLocale(posix.monetary)),
          messages(icuLocale(posix.messages)),
          money(monetary),
          count(icu::number::NumberFormatter::withLocale(icuLocale(posix.numeric))),
          dates(icuLocale(posix.time)),
          relativeTimes(icuLocale(posix.time)),
          names(icu::LocaleDisplayNames::createInstance(messages)),
          order(nameOrder(icuLocale(posix.collate))) {}
};

Locale::Locale(const LocaleNames& names) : formats_(std::make_unique<const Formats>(names)) {}

Locale::~Locale() = default;

std::optional<std::string> Locale::currencyCode() const {
    std::array<UChar, 4> code{};
    UErrorCode status = U_ZERO_ERROR;
    ucurr_forLocale(formats_->monetary.getName(), code.data(), static_cast<std::int32_t>(code.size()),
                    &status);
    const auto text = utf8(icu::UnicodeString(code.data()));
    return U_SUCCESS(status) && MoneyFormats::isCurrency(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::string> Locale::regionCode() const {
    const std::string region = formats_->monetary.getCountry();
    return region.empty() ? std::nullopt : std::optional(region);
}

std::string Locale::languageTag() const {
    UErrorCode status = U_ZERO_ERROR;
    auto tag = icu::Locale(formats_->messages.getBaseName()).toLanguageTag<std::string>(status);
    return U_SUCCESS(status) ? tag : std::string("en");
}

std::string Locale::regionName(std::string_view code) const {
    if (!isRegionCode(code)) {
        return std::string(code);
    }
    icu::UnicodeString name;
    return utf8(formats_->names->regionDisplayName(std::string(code).c_str(), name));
}

std::string Locale::money(const Decimal& amount, std::string_view currency) const {
    return formats_->money.money(amount, currency);
}

std::string Locale::wholeMoney(const Decimal& amount, std::string_view currency) const {
    return formats_->money.wholeMoney(amount, currency);
}

std::string Locale::compactMoney(double amount, std::string_view currency) const {
    return formats_->money.compactMoney(amount, currency);
}

std::string Locale::spokenMoney(const Decimal& amount, std::string_view currency) const {
    return formats_->money.spokenMoney(amount, currency);
}

std::string Locale::count(std::int64_t value) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto text = formats_->count.formatInt(value, status).toString(status);
    return U_SUCCESS(status) ? utf8(text) : std::to_string(value);
}

std::string Locale::dateAndTime(Instant instant, const TimeZone& zone) const {
    return formats_->dates.dateAndTime.text(wallTime(instant, zone));
}

std::string Locale::logTime(Instant instant, const TimeZone& zone) const {
    return formats_->dates.logTime.text(wallTime(instant, zone));
}

std::string Locale::relativeTime(Instant then, Instant now, const TimeZone& zone) const {
    return formats_->relativeTimes.text(RelativeTime::between(then, now, zone, firstWeekday()));
}

std::string Locale::dayRange(CivilDate first, CivilDate last) const {
    return formats_->dates.dayRange(first, last);
}

std::string Locale::wideWeekdayDate(CivilDate day) const {
    return formats_->dates.wideWeekdayDate.text(day);
}

std::string Locale::weekdayDate(CivilDate day) const {
    return formats_->dates.weekdayDate.text(day);
}

std::string Locale::weekdayMonthDay(CivilDate day) const {
    return formats_->dates.weekdayMonthDay.text(day);
}

std::string Locale::date(CivilDate day) const {
    return formats_->dates.date.text(day);
}

std::string Locale::monthDay(CivilDate day) const {
    return formats_->dates.monthDay.text(day);
}

std::string Locale::monthYear(CivilDate day) const {
    return formats_->dates.monthYear.text(day);
}

std::string Locale::shortMonth(CivilDate day) const {
    return formats_->dates.shortMonth.text(day);
}

std::string Locale::shortMonthYear(CivilDate day) const {
    return formats_->dates.shortMonthYear.text(day);
}

std::string Locale::shortWeekday(CivilDate day) const {
    return formats_->dates.shortWeekday.text(day);
}

std::chrono::weekday Locale::firstWeekday() const {
    return formats_->dates.firstWeekday;
}

int Locale::compareNames(std::string_view left, std::string_view right) const {
    UErrorCode status = U_ZERO_ERROR;
    return formats_->order->compareUTF8(piece(left), piece(right), status);
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
