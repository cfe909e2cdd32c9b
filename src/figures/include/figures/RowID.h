#pragma once

#include <compare>
#include <cstdint>

namespace vantrell {

/// Identifies a row of one snapshot. No two rows of any two reloads share one.
struct RowID {
    std::int64_t load = 0;  ///< the reload that made the row
    std::uint64_t index = 0;
    auto operator<=>(const RowID&) const = default;
};

}  // namespace vantrell
