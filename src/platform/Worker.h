#pragma once

#include "platform/Cancellation.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Does long calculations beside the thread that waits for them, one at a time and in order.
class Worker {
  public:
    virtual ~Worker() = default;

    /// What `work` gives; absent when `cancel` was cancelled. `work` must own all that it uses, since after a
    /// cancellation it goes on unheard, and must not throw. Whoever waits is ended before the worker is.
    template <typename Result>
    [[nodiscard]] QCoro::Task<std::optional<Result>> run(std::function<Result()> work, CancelToken cancel) {
        auto result = std::make_shared<std::optional<Result>>();
        std::function<void()> job = [result, work = std::move(work)] { result->emplace(work()); };
        co_await perform(std::move(job), cancel);
        // Only without a cancellation is nobody writing there any more.
        co_return cancel.isCancelled() ? std::nullopt : std::move(*result);
    }

  protected:
    /// Resumes on the calling thread when `job` has ended, or at once when `cancel` is cancelled.
    [[nodiscard]] virtual QCoro::Task<> perform(std::function<void()> job, CancelToken cancel) = 0;
};

/// Does it where it is asked to, at once; where no window is to be kept moving.
class ImmediateWorker final : public Worker {
  protected:
    [[nodiscard]] QCoro::Task<> perform(std::function<void()> job, CancelToken cancel) override;
};

}  // namespace vantrell
