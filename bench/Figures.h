#pragma once

#include "BenchProgram.h"
#include "Measure.h"

#include <vector>

namespace vantrell::bench {

/// Every figure by itself, each on its first call after a reload: the median of several.
[[nodiscard]] std::vector<Result> measureFigures(BenchProgram& program);

}  // namespace vantrell::bench
