#pragma once

#include "currency/CurrencyConverter.h"
#include "earnings/SalesSelection.h"
#include "earnings/SalesSnapshot.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// What single sales lines are worth in the display currency, as numbers to draw and to sort by. Most lines
/// have the price and the units of many others, so each such pair is converted once; the digits are those of
/// converting line by line. For one walk.
class LineValues {
  public:
    /// The snapshot must outlive this.
    LineValues(const SalesSnapshot& snapshot, const CurrencyConverter& converter);

    /// Always finite; absent for a currency without a rate.
    [[nodiscard]] std::optional<double> value(const SalesRowRef& row);

  private:
    [[nodiscard]] double converted(std::uint32_t price, std::int64_t units) const;

    const SalesSnapshot& snapshot_;
    std::vector<std::optional<Conversion>> conversions_;  // by currency
    // Values are finite, so what isn't can say "not converted yet" and "no rate".
    std::vector<double> ofFewUnits_;                         // by price and units
    std::unordered_map<std::uint64_t, double> ofManyUnits_;  // likewise
};

}  // namespace vantrell
