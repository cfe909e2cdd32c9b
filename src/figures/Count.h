#pragma once

#include <cstdint>
#include <limits>

namespace vantrell {

// Counts that are too large stay at the largest or smallest that there is.

[[nodiscard]] inline std::int64_t countSum(std::int64_t left, std::int64_t right) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(left, right, &sum)) {
        return right < 0 ? std::numeric_limits<std::int64_t>::min()
                         : std::numeric_limits<std::int64_t>::max();
    }
    return sum;
}

[[nodiscard]] inline std::int64_t countNegated(std::int64_t count) {
    return count == std::numeric_limits<std::int64_t>::min() ? std::numeric_limits<std::int64_t>::max()
                                                             : -count;
}

}  // namespace vantrell
