#pragma once

#include "Measure.h"

#include <cstdint>
#include <vector>

namespace vantrell::bench {

/// Measures everything over `years` years of an account of about `dailyLines` lines a year, and prints each
/// result as it comes. Throws std::runtime_error if a floor did not do the same work.
std::vector<Result> runBench(std::int64_t dailyLines, int years = 1);

/// Measures everything over a small account, a large one, and the small one with years of history. Prints by
/// how much the cost of a row grows from small to large, where 1 is linear, and what the history costs: 1 is
/// nothing, which is what the figures of a range should take.
void runGrowth();

}  // namespace vantrell::bench
