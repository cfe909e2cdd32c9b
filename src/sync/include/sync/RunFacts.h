#pragma once

#include "base/Instant.h"
#include "net/HttpFailure.h"

#include <chrono>
#include <optional>
#include <string>

namespace vantrell {

// What there is to tell of runs; the words for it are found by whoever shows it.

enum class RunKind { sync, backfill, refetch };

/// What a run is doing now.
struct RunProgress {
    enum class Part { days, months, years, finance, refetch, financeRefetch };

    Part part = Part::days;
    std::string item = {};  ///< the report's date or period, or the month as it was typed; may be empty
    std::optional<double> fraction = {};  ///< of the part, 0 to 1; absent where it can't be told

    bool operator==(const RunProgress&) const = default;
};

/// What stopped or prevented a run.
struct RunFailure {
    enum class Kind { noKey, damagedStore, noMonth, keyRefused, rateLimited, unreachable, nothingStored };

    Kind kind;
    std::string detail = {};  ///< of a refused key what the service said, of reports why the first failed
    std::optional<HttpFailure> unheard = {};              ///< where no answer came
    std::optional<std::chrono::minutes> clockAhead = {};  ///< of the service's, with a refused key

    bool operator==(const RunFailure&) const = default;
};

/// Why a report could not be fetched or kept.
struct ReportProblem {
    std::string message;
    std::optional<HttpFailure> unheard = {};  ///< where no answer came

    bool operator==(const ReportProblem&) const = default;
};

struct FinishedRun {
    RunKind kind;
    Instant at;
    int failed = 0;  ///< reports
    std::optional<ReportProblem> firstProblem = {};

    bool operator==(const FinishedRun&) const = default;
};

}  // namespace vantrell
