#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrell {

/// A sample of the lines of a report that could not be used, for the user to read.
struct SkippedLines {
    std::string text;
    bool full = false;  ///< 2,000 characters are reached
};

inline constexpr std::size_t mostSampleBytes = std::size_t{16} << 10U;

/// Adds `line` on a line of its own, with two spaces for each tab, unless the sample is full. The line that
/// fills it is kept whole, or as far as `mostSampleBytes` reach.
void appendSkippedLine(std::string_view line, SkippedLines& skippedLines);

}  // namespace vantrell
