#pragma once

#include "base/LocalTime.h"
#include "locale/Locale.h"
#include "sync/Account.h"
#include "sync/RunFacts.h"

#include <optional>

#include <QString>

namespace vantrell {

// What the engine tells of runs, in sentences. Dates, periods and what a service said stand in them as they
// are: whoever shows them clamps them.

/// Also where a run has nothing to tell yet.
[[nodiscard]] QString runText(const std::optional<RunProgress>& progress);
/// Empty without one, as is the other.
[[nodiscard]] QString runText(const std::optional<RunFailure>& failure);
[[nodiscard]] QString runText(const std::optional<FinishedRun>& run, const Locale& locale,
                              const TimeZone& zone);
[[nodiscard]] QString connectionText(const std::optional<ConnectionTest>& test);

}  // namespace vantrell
