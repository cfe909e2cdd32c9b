#pragma once

#include "BenchProgram.h"

#include <cstdint>
#include <filesystem>

namespace vantrell::bench {

/// The figures that the Dashboard shows: the five tiles and a chart of 30 days.
[[nodiscard]] std::size_t dashboard(const EarningsStore& store, const Locale& locale);

/// What a fresh process over a filled store measures of itself, but for `figuresMilliseconds`, which is from
/// its start to the moment at which its figures have come.
struct FirstFigures {
    double loadMilliseconds = 0;  ///< opening the store and the first reload
    double figuresMilliseconds = 0;
    std::int64_t bytes = 0;  ///< resident growth by the first reload
};

/// Starts this program again over the store in `folder`. Throws std::runtime_error if it fails.
[[nodiscard]] FirstFigures measureFirstFigures(const std::filesystem::path& folder);

/// What that process does.
void showFirstFigures(const std::filesystem::path& folder);

}  // namespace vantrell::bench
