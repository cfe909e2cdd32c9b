#pragma once

#include "Count.h"
#include "figures/AggregateStats.h"
#include "figures/ExactSum.h"
#include "figures/OfferSums.h"
#include "figures/ProductKind.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantrell {

/// Adds sales lines up to an AggregateStats. One table for every figure says what a line adds:
///
///     kind        units 0 or more       units below 0       money
///     app         appUnits              refundedUnits       the amount
///     iap         iapUnits              refundedUnits       the amount
///     update      updateUnits           nothing             none
///     redownload  redownloadUnits       nothing             none
///     other       nothing               nothing             the amount
///
/// A refund is told from a sale by nothing but the sign of its units. An amount of zero makes no entry.
class StatsAccumulator {
  public:
    /// Lines come in no order that a processor could guess, so they are sorted by place and not by branches;
    /// `stats` reads the table above.
    void add(const OfferSum& lines) {
        const SalesOffer& offer = *lines.offer;
        const auto row = static_cast<std::size_t>(offer.kind);
        std::int64_t& units = units_[row][lines.units < 0 ? 1 : 0];
        units = countSum(units, lines.units);
        if (offer.currency >= sums_.size()) {
            sums_.resize(offer.currency + 1U);
        }
        sums_[offer.currency].add(moneyFactors[row] * lines.units, offer.proceeds);
    }
    void add(const std::vector<OfferSum>& sums) {
        for (const OfferSum& sum : sums) {
            add(sum);
        }
    }

    /// Adds all that another one has counted, whose currencies are numbered alike.
    void add(const StatsAccumulator& other);

    /// The currencies are those of the offers.
    [[nodiscard]] AggregateStats stats(const std::vector<std::string_view>& currencies) const;

  private:
    [[nodiscard]] std::int64_t sold(ProductKind kind) const {
        return units_[static_cast<std::size_t>(kind)][0];
    }
    /// Negative.
    [[nodiscard]] std::int64_t refunded(ProductKind kind) const {
        return units_[static_cast<std::size_t>(kind)][1];
    }

    static constexpr std::size_t kinds = static_cast<std::size_t>(ProductKind::last) + 1;
    /// In the order of ProductKind.
    static constexpr auto moneyFactors = [] {
        std::array<std::int64_t, kinds> factors{};
        for (std::size_t kind = 0; kind < kinds; ++kind) {
            factors[kind] = bringsMoney(static_cast<ProductKind>(kind)) ? 1 : 0;
        }
        return factors;
    }();
    std::array<std::array<std::int64_t, 2>, kinds> units_{};  // of 0 or more, and below 0
    std::vector<ExactSum> sums_;
};

}  // namespace vantrell
