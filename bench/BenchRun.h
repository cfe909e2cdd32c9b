#pragma once

#include "Measure.h"

#include <cstdint>
#include <vector>

namespace vantrell::bench {

/// Measures everything over an account of about `dailyLines` lines a year and prints each result as it comes.
/// Throws std::runtime_error if a floor did not do the same work.
std::vector<Result> runBench(std::int64_t dailyLines);

/// Measures everything over a small and a large account, and prints by how much the cost of a row grows from
/// one to the other: 1 is linear.
void runGrowth();

}  // namespace vantrell::bench
