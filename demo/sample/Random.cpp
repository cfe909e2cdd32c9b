#include "sample/Random.h"

#include <algorithm>
#include <cassert>

namespace vantrell::sample {

WeightedChoice::WeightedChoice(std::span<const std::uint32_t> weights) {
    upTo_.reserve(weights.size());
    std::uint64_t sum = 0;
    for (const auto weight : weights) {
        sum += weight;
        upTo_.push_back(sum);
    }
    assert(sum > 0);
}

std::size_t WeightedChoice::pick(Random& random) const {
    const auto ticket = random.below(upTo_.back());
    return static_cast<std::size_t>(std::ranges::upper_bound(upTo_, ticket) - upTo_.begin());
}

}  // namespace vantrell::sample
