#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Does long calculations beside the thread that waits for them, one at a time and in order.
class Worker {
  public:
    virtual ~Worker() = default;

    /// What `work` gives; absent when `cancel` was cancelled. What it throws is thrown again here. `work`
    /// must own all that it uses, since after a cancellation it goes on unheard. Whoever waits is ended
    /// before the worker is.
    template <typename Result>
    [[nodiscard]] QCoro::Task<std::optional<Result>> run(std::function<Result()> work,
                                                         std::stop_token cancel) {
        auto outcome = std::make_shared<Outcome<Result>>();
        std::function<void()> job = [outcome, work = std::move(work)] {
            try {
                outcome->result.emplace(work());
            } catch (...) {
                outcome->error = std::current_exception();
            }
        };
        co_await perform(std::move(job), cancel);
        // Only without a cancellation is nobody writing there any more.
        if (cancel.stop_requested()) {
            co_return std::nullopt;
        }
        if (outcome->error) {
            std::rethrow_exception(outcome->error);
        }
        co_return std::move(outcome->result);
    }

  protected:
    /// Resumes on the calling thread when `job` has ended, or at once when `cancel` is cancelled.
    [[nodiscard]] virtual QCoro::Task<> perform(std::function<void()> job, std::stop_token cancel) = 0;

  private:
    template <typename Result>
    struct Outcome {
        std::optional<Result> result;
        std::exception_ptr error;
    };
};

/// Does it where it is asked to, at once; where no window is to be kept moving.
class ImmediateWorker final : public Worker {
  protected:
    [[nodiscard]] QCoro::Task<> perform(std::function<void()> job, std::stop_token cancel) override;
};

}  // namespace vantrell
