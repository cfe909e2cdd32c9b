#pragma once

#include "currency/CurrencyConverter.h"
#include "earnings/SalesSelection.h"
#include "earnings/SalesSnapshot.h"
#include "platform/Decimal.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// What single sales lines are worth in the display currency. Most lines have the price and the units of many
/// others, so each such pair is converted once; the digits are those of converting line by line. For one
/// walk.
class LineValues {
  public:
    /// The snapshot must outlive this.
    LineValues(const SalesSnapshot& snapshot, const CurrencyConverter& converter);

    /// Absent for a currency without a rate.
    [[nodiscard]] std::optional<Decimal> amount(const SalesRowRef& row);
    /// The same as a number to draw and to sort by; always finite.
    [[nodiscard]] std::optional<double> value(const SalesRowRef& row);

  private:
    struct Worth {
        bool isKnown = false;
        double value = 0;
        Decimal amount;
    };
    const Worth* worth(const SalesRowRef& row);

    const SalesSnapshot& snapshot_;
    std::vector<std::optional<Conversion>> conversions_;  // by currency
    std::vector<Worth> ofFewUnits_;                       // by price and units
    std::unordered_map<std::uint32_t, std::unordered_map<std::int64_t, Worth>> ofManyUnits_;  // likewise
};

}  // namespace vantrell
