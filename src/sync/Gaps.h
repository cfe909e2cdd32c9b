#pragma once

#include "RunPlan.h"

#include <set>
#include <string>

namespace vantrell {

/// Every report that the service may still have, whose period has ended, and of which the last word isn't
/// stored: a year of days, the years, 12 months and the fiscal periods from 2024-01. All of these are due.
/// What stands in `asked`, by its log key, is left out.
[[nodiscard]] RunSteps gapSteps(RunBasis basis, std::set<std::string> asked);

}  // namespace vantrell
