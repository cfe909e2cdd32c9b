#pragma once

#include "PlainDatabase.h"

#include <filesystem>

namespace vantrell::bench {

struct LoadFloor {
    double milliseconds = 0;
    TableSum sum;
};

/// The least that loading the plain table can cost: stepping through the 14 columns that the figures need and
/// fetching each value, keeping none. Opening the file counts.
[[nodiscard]] LoadFloor stepThroughPlainTable(const std::filesystem::path& file);

/// The sum of units times proceeds by SQLite's own floating-point arithmetic.
[[nodiscard]] double plainProceeds(const std::filesystem::path& file);

}  // namespace vantrell::bench
