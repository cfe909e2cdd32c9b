#pragma once

#include "OfferGroups.h"
#include "currency/CurrencyConverter.h"
#include "figures/ExactSum.h"
#include "figures/OfferSums.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace vantrell {

/// An amount in the display currency as numbers to draw and to sort by; always finite.
struct SignedAmounts {
    double proceeds = 0;  ///< of the lines worth 0 or more
    double refunds = 0;   ///< of the lines worth less than 0; never above zero

    [[nodiscard]] bool isZero() const { return proceeds == 0 && refunds == 0; }
    [[nodiscard]] double total() const { return proceeds + refunds; }
};

/// Adds lines up exactly by group and currency, proceeds and refunds apart, and converts each of these sums
/// once.
class ChartSums {
  public:
    /// The currencies are those of the offers.
    ChartSums(const OfferGroups& groups, const std::vector<std::string_view>& currencies,
              const CurrencyConverter& converter);

    /// The amount of each group by its number, without what has no rate; absent for a group without lines
    /// that have one.
    [[nodiscard]] std::vector<std::optional<SignedAmounts>> amounts(const std::vector<OfferSum>& lines);

  private:
    struct Money {
        bool isUsed = false;  // by a line worth nothing as well
        ExactSum proceeds;
        ExactSum refunds;
    };
    void add(const OfferSum& lines);
    [[nodiscard]] std::optional<SignedAmounts> takeAmount(std::size_t group);

    const OfferGroups& groups_;
    std::vector<std::optional<long double>> rates_;  // by currency: what one unit of it is worth
    std::vector<Money> sums_;                        // by group, then by currency
};

}  // namespace vantrell
