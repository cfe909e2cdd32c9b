#include "RunTally.h"

namespace vantrell {
namespace {

constexpr int mostUnheardInARow = 5;

}  // namespace

void RunTally::add(const IntakeResult& result) {
    ++asked_;
    lastUnheard_ = result.problem ? result.problem->unheard : std::nullopt;
    unheardInARow_ = lastUnheard_ && isOfTransport(*lastUnheard_) ? unheardInARow_ + 1 : 0;
    if (result.problem) {
        ++failed_;
        if (!firstProblem_) {
            firstProblem_ = result.problem;
        }
    }
}

std::optional<RunFailure> RunTally::unreachable() const {
    return unheardInARow_ < mostUnheardInARow
               ? std::nullopt
               : std::optional(RunFailure{RunFailure::Kind::unreachable, {}, lastUnheard_});
}

std::optional<RunFailure> RunTally::nothingStored() const {
    return !firstProblem_ || failed_ < asked_
               ? std::nullopt
               : std::optional(RunFailure{RunFailure::Kind::nothingStored, firstProblem_->message,
                                          firstProblem_->unheard});
}

}  // namespace vantrell
