#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"
#include "data/RatesText.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

/// What turns an amount of one currency into the display currency: divided by one rate, times the other.
/// Prepared once for a currency, it gives the very digits that `CurrencyConverter::convert` gives.
class Conversion {
  public:
    /// Leaves amounts as they are.
    Conversion() = default;
    Conversion(const Decimal& from, const Decimal& to) : isIdentity_(false), from_(from), to_(to) {}

    [[nodiscard]] Decimal operator()(const Decimal& amount) const {
        return isIdentity_ ? amount : amount / from_ * to_;
    }

  private:
    bool isIdentity_ = true;
    Decimal from_;
    Decimal to_;
};

/// An amount in the display currency, and what could not be counted in it.
struct ConvertedTotal {
    Decimal amount;
    std::vector<std::string> withoutRate;  ///< currency codes, ascending
    bool operator==(const ConvertedTotal&) const = default;
};

/// Converts exact amounts at the stored rates. The rates of the latest fetch serve every period, and nothing
/// is rounded: that is a matter of display. A rate that is not finite or not above zero counts as missing.
struct CurrencyConverter {
    std::string displayCurrency;
    Rates perUSD;  ///< units of each currency for one US dollar; empty until rates were fetched
    std::optional<Instant> fetchedAt;

    /// Absent if a rate is missing. The display currency itself needs none.
    [[nodiscard]] std::optional<Conversion> conversion(std::string_view code) const;
    [[nodiscard]] std::optional<Decimal> convert(const Decimal& amount, std::string_view code) const;
    [[nodiscard]] ConvertedTotal total(const std::map<std::string, Decimal, std::less<>>& byCurrency) const;

    bool operator==(const CurrencyConverter&) const = default;
};

}  // namespace vantrell
