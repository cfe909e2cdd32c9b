#pragma once

#include "base/Worker.h"
#include "testing/ManualClock.h"

#include <new>

namespace vantrell::testing {

/// Works at once, as long as it isn't held; then jobs wait for `release`.
class HeldWorker final : public Worker {
  public:
    HeldWorker() { gate_.autoAdvance = false; }

    bool isHeld = false;
    bool isOutOfMemory = false;
    [[nodiscard]] bool hasWork() const { return waiting_ > 0; }
    void release() { gate_.advance(std::chrono::seconds(1)); }

  protected:
    [[nodiscard]] QCoro::Task<> perform(std::function<void()> job, std::stop_token cancel) override {
        if (isHeld) {
            ++waiting_;
            co_await gate_.sleep(std::chrono::seconds(1), cancel);
            --waiting_;
        }
        if (isOutOfMemory) {
            throw std::bad_alloc();
        }
        if (!cancel.stop_requested()) {
            job();
        }
    }

  private:
    ManualClock gate_;
    int waiting_ = 0;
};

}  // namespace vantrell::testing
