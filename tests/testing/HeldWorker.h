#pragma once

#include "platform/Worker.h"

#include <coroutine>
#include <new>

namespace vantrell::testing {

/// Works at once, as long as it isn't held; then jobs wait for `release`.
class HeldWorker final : public Worker {
  public:
    bool isHeld = false;
    bool isOutOfMemory = false;
    [[nodiscard]] bool hasWork() const { return static_cast<bool>(*waiting_); }
    void release() { wake(*waiting_); }

  protected:
    [[nodiscard]] QCoro::Task<> perform(std::function<void()> job, CancelToken cancel) override {
        if (isHeld) {
            const auto registration = cancel.onCancel([waiting = waiting_] { wake(*waiting); });
            const Wait wait{waiting_};
            co_await wait;
        }
        if (isOutOfMemory) {
            throw std::bad_alloc();
        }
        if (!cancel.isCancelled()) {
            job();
        }
    }

  private:
    struct Wait {
        std::shared_ptr<std::coroutine_handle<>> waiting;
        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> handle) const { *waiting = handle; }
        void await_resume() const noexcept {}
    };

    static void wake(std::coroutine_handle<>& waiting) {
        if (auto handle = std::exchange(waiting, {})) {
            handle.resume();
        }
    }

    std::shared_ptr<std::coroutine_handle<>> waiting_ = std::make_shared<std::coroutine_handle<>>();
};

}  // namespace vantrell::testing
