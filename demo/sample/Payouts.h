#pragma once

#include "sample/Money.h"
#include "sample/SampleAccount.h"

#include <compare>
#include <cstdint>
#include <vector>

namespace vantrell::sample {

/// What the seller was paid for one item in one country on the same terms. Returns are lines of their own,
/// with a negative quantity.
struct PayoutLine {
    std::uint8_t item = 0;
    std::uint8_t territory = 0;
    bool isReturn = false;
    std::int64_t share = 0;  ///< for one unit, in minor units, as is the price
    std::int64_t price = 0;
    std::int64_t quantity = 0;

    [[nodiscard]] std::int64_t extendedShare() const { return share * quantity; }
};

/// The paid sales of `range`, in the order of the catalogue. Who bought what on which device is lost.
[[nodiscard]] std::vector<PayoutLine> payouts(const SampleAccount& account, const DateRange& range);

}  // namespace vantrell::sample
