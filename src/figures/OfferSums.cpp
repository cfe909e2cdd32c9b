#include "figures/OfferSums.h"

#include <span>
#include <utility>

namespace vantrell {

void OfferSums::add(const SalesChunk& lines) {
    const auto refunds = static_cast<std::uint32_t>(offers_.size());
    std::int64_t* const sums = sums_.data();
    std::uint32_t* used = used_.data() + usedCount_;
    for (std::size_t row = 0; row < lines.size(); ++row) {
        const std::uint32_t offer = lines.offers[row];
        const std::int32_t units = lines.units[row];
        if (units == SalesChunk::largeUnits) [[unlikely]] {
            large_.push_back({&offers_[offer], offer, lines.unitsOf(row)});
            continue;
        }
        // No processor could guess what the next line is, so there are no branches.
        const std::uint32_t slot = offer + refunds * static_cast<std::uint32_t>(units < 0);
        const std::int64_t before = sums[slot];
        sums[slot] = (before | 1) + std::int64_t{2} * units;
        *used = slot;
        used += ~before & 1;
    }
    usedCount_ = static_cast<std::size_t>(used - used_.data());
}

std::vector<OfferSum> OfferSums::take(const OfferMask& mask) {
    const auto offers = static_cast<std::uint32_t>(offers_.size());
    std::vector<OfferSum> sums = std::exchange(large_, {});
    sums.reserve(sums.size() + usedCount_);
    for (const std::uint32_t slot : std::span(used_).first(usedCount_)) {
        const std::uint32_t number = slot < offers ? slot : slot - offers;
        sums.push_back({&offers_[number], number, sums_[slot] >> 1U});
        sums_[slot] = 0;
    }
    usedCount_ = 0;
    if (mask) {
        std::erase_if(sums, [&mask](const OfferSum& sum) { return !(*mask)[sum.offerNumber]; });
    }
    return sums;
}

}  // namespace vantrell
