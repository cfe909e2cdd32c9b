#include "MoneyFormats.h"

#include "IcuText.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <unicode/ucurr.h>

namespace vantrell {
namespace {

using icu::number::FormattedNumber;
using icu::number::LocalizedNumberFormatter;
using icu::number::Notation;
using icu::number::Precision;

/// From here on an axis counts in thousands.
constexpr double leastCompact = 1000;

LocalizedNumberFormatter amountsOf(const icu::Locale& locale) {
    return icu::number::NumberFormatter::withLocale(locale)
        .roundingMode(UNUM_ROUND_HALFUP)
        .sign(UNUM_SIGN_NEGATIVE);
}

/// Cents, but none on a whole number, and more where an axis needs them to tell its steps apart.
Precision axisDigits() {
    return Precision::minMaxFraction(2, 4).trailingZeroDisplay(UNUM_TRAILING_ZERO_HIDE_IF_WHOLE);
}

/// With the locale's own grouping, since not every locale has a short form for thousands.
LocalizedNumberFormatter compactOf(const LocalizedNumberFormatter& format) {
    return format.notation(Notation::compactShort())
        .precision(Precision::maxFraction(2))
        .grouping(UNUM_GROUPING_AUTO);
}

icu::CurrencyUnit unitOf(std::string_view currency) {
    UErrorCode status = U_ZERO_ERROR;
    icu::CurrencyUnit unit(piece(currency), status);
    requireLocaleData(status);
    return unit;
}

std::string textOf(const LocalizedNumberFormatter& format, const Decimal& amount) {
    UErrorCode status = U_ZERO_ERROR;
    const auto number = amount.text();
    const auto shown = format.formatDecimal(piece(number), status).toString(status);
    return U_SUCCESS(status) ? utf8(shown) : number;
}

std::string textOf(const LocalizedNumberFormatter& format, double amount) {
    UErrorCode status = U_ZERO_ERROR;
    const auto shown = format.formatDouble(amount, status).toString(status);
    return U_SUCCESS(status) ? utf8(shown) : std::to_string(amount);
}

std::string afterCode(std::string_view code, const std::string& number) {
    return code.empty() ? number : std::string(code) + "\u00A0" + number;
}

}  // namespace

MoneyFormats::MoneyFormats(const icu::Locale& locale)
    : base_(amountsOf(locale)),
      plain_{base_.precision(Precision::fixedFraction(2)), base_.precision(Precision::integer()),
             base_.precision(Precision::fixedFraction(2)), base_.precision(axisDigits()), compactOf(base_)} {}

std::string MoneyFormats::money(const Decimal& amount, std::string_view currency) const {
    const auto* forms = formsOf(currency);
    return forms != nullptr ? textOf(forms->standard, amount)
                            : afterCode(currency, textOf(plain_.standard, amount));
}

std::string MoneyFormats::wholeMoney(const Decimal& amount, std::string_view currency) const {
    const auto* forms = formsOf(currency);
    return forms != nullptr ? textOf(forms->whole, amount)
                            : afterCode(currency, textOf(plain_.whole, amount));
}

std::string MoneyFormats::spokenMoney(const Decimal& amount, std::string_view currency) const {
    if (const auto* forms = formsOf(currency)) {
        return textOf(forms->spoken, amount);
    }
    const auto number = textOf(plain_.spoken, amount);
    return currency.empty() ? number : number + " " + std::string(currency);
}

std::string MoneyFormats::compactMoney(double amount, std::string_view currency) const {
    const auto* forms = formsOf(currency);
    const auto& form = forms != nullptr ? *forms : plain_;
    const auto text = textOf(std::abs(amount) < leastCompact ? form.small : form.compact, amount);
    return forms != nullptr ? text : afterCode(currency, text);
}

bool MoneyFormats::isCurrency(std::string_view code) {
    // The library would also take lower case and "no currency".
    if (code.size() != 3 || code == "XXX" ||
        !std::ranges::all_of(code, [](char letter) { return letter >= 'A' && letter <= 'Z'; })) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    constexpr UDate ever = std::numeric_limits<UDate>::max();
    return ucurr_isAvailable(icu::UnicodeString::fromUTF8(piece(code)).getTerminatedBuffer(), -ever, ever,
                             &status) != 0;
}

const MoneyFormats::Forms* MoneyFormats::formsOf(std::string_view currency) const {
    const std::scoped_lock lock(mutex_);
    if (const auto known = byCurrency_.find(currency); known != byCurrency_.end()) {
        return &known->second;
    }
    if (!isCurrency(currency)) {
        return nullptr;
    }
    const auto format = base_.unit(unitOf(currency));
    const auto usual = format.precision(Precision::currency(UCURR_USAGE_STANDARD));
    Forms forms{usual, format.precision(Precision::integer()), usual.unitWidth(UNUM_UNIT_WIDTH_FULL_NAME),
                format.precision(axisDigits()), compactOf(format)};
    return &byCurrency_.emplace(currency, std::move(forms)).first->second;
}

}  // namespace vantrell
