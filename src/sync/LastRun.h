#pragma once

#include "files/Defaults.h"
#include "sync/RunFacts.h"

#include <optional>

namespace vantrell {

// The last run, for the next start to tell.

void keepLastRun(const FinishedRun& run, Defaults& defaults);

/// Absent if it can't be read, or lies ahead of `now`.
[[nodiscard]] std::optional<FinishedRun> keptLastRun(const Defaults& defaults, Instant now);

}  // namespace vantrell
