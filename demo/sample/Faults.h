#pragma once

#include "sample/Answer.h"

#include <deque>
#include <optional>
#include <string>
#include <utility>

namespace vantrell::sample {

/// Answers that a test wants in place of the true ones: each stands in for one request, whatever it asks
/// for and whoever asks, in the order in which they were ordered.
class Faults {
  public:
    void answerNext(Answer answer) { waiting_.push_back(std::move(answer)); }
    void answerNext(int status, std::string body) {
        answerNext({status, "application/json", std::move(body)});
    }

    /// For the service: the answer to the present request, if one was ordered.
    [[nodiscard]] std::optional<Answer> take() {
        if (waiting_.empty()) {
            return std::nullopt;
        }
        auto answer = std::move(waiting_.front());
        waiting_.pop_front();
        return answer;
    }

  private:
    std::deque<Answer> waiting_;
};

}  // namespace vantrell::sample
