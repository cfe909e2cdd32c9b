#pragma once

#include "base/Decimal.h"

#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include <unicode/locid.h>
#include <unicode/numberformatter.h>

namespace vantrell {

/// The forms in which a locale writes amounts. To make a format takes long, so each is kept by currency.
class MoneyFormats {
  public:
    explicit MoneyFormats(const icu::Locale& locale);

    [[nodiscard]] std::string money(const Decimal& amount, std::string_view currency) const;
    [[nodiscard]] std::string wholeMoney(const Decimal& amount, std::string_view currency) const;
    [[nodiscard]] std::string spokenMoney(const Decimal& amount, std::string_view currency) const;
    [[nodiscard]] std::string compactMoney(double amount, std::string_view currency) const;

    /// Whether `code` is or once was a currency.
    [[nodiscard]] static bool isCurrency(std::string_view code);

  private:
    using Format = icu::number::LocalizedNumberFormatter;
    struct Forms {
        Format standard;
        Format whole;
        Format spoken;
        Format small;
        Format compact;
    };

    /// Absent for a code that is no currency; what is given stays where it is.
    [[nodiscard]] const Forms* formsOf(std::string_view currency) const;

    Format base_;
    Forms plain_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, Forms, std::less<>> byCurrency_;
};

}  // namespace vantrell
