#pragma once

#include "Intake.h"
#include "sync/RunFacts.h"

#include <optional>

namespace vantrell {

/// How the reports of one run fared.
class RunTally {
  public:
    void add(const IntakeResult& result);

    [[nodiscard]] int failed() const { return failed_; }
    [[nodiscard]] const std::optional<ReportProblem>& firstProblem() const { return firstProblem_; }

    /// After several requests in a row that nobody heard, all others would wait in vain.
    [[nodiscard]] std::optional<RunFailure> unreachable() const;
    /// A run of which every report failed is one that failed.
    [[nodiscard]] std::optional<RunFailure> nothingStored() const;

  private:
    int asked_ = 0;
    int failed_ = 0;
    int unheardInARow_ = 0;
    std::optional<ReportProblem> firstProblem_;
    std::optional<HttpFailure> lastUnheard_;
};

}  // namespace vantrell
