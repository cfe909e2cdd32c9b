#pragma once

#include "BenchData.h"
#include "PlainDatabase.h"

#include <filesystem>

namespace vantrell::bench {

/// The least that storing all sales reports in one plain table of text and numbers can cost: splitting the
/// lines and inserting the 25 values of each, the lines of a report under consecutive numbers, one
/// transaction a report. Unpacking the bodies is not counted. Milliseconds.
[[nodiscard]] double fillPlainTable(const BenchData& data, const std::filesystem::path& file);

}  // namespace vantrell::bench
