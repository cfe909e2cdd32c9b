#pragma once

#include "earnings/AggregateStats.h"
#include "earnings/ExactSum.h"
#include "earnings/ProductKind.h"
#include "earnings/TextPool.h"

#include <cstdint>
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
    /// `currency` is a number of the pool that is handed to `stats`.
    void add(ProductKind kind, std::int64_t units, const ScaledPrice& price, std::uint32_t currency) {
        addUnits(kind, units);
        if (kind == ProductKind::update || kind == ProductKind::redownload || price.isZero()) {
            return;
        }
        if (currency >= sums_.size()) {
            sums_.resize(currency + 1U);
        }
        sums_[currency].add(units, price);
    }

    /// Adds all that another one has counted, whose currencies are of the same pool.
    void add(const StatsAccumulator& other);

    [[nodiscard]] AggregateStats stats(const TextPool& currencies) const;

  private:
    void addUnits(ProductKind kind, std::int64_t units);

    AggregateStats counts_;
    std::vector<ExactSum> sums_;
};

}  // namespace vantrell
