#include "testing/ManualClock.h"

#include <algorithm>
#include <coroutine>
#include <utility>

namespace vantrell::testing {

struct ManualClock::Sleeper {
    std::chrono::microseconds until;
    std::coroutine_handle<> waiting;

    void wake() {
        if (auto handle = std::exchange(waiting, {})) {
            handle.resume();
        }
    }
};

namespace {

template <typename Sleeper>
struct Wait {
    std::shared_ptr<Sleeper> sleeper;
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> handle) const { sleeper->waiting = handle; }
    void await_resume() const noexcept {}
};

}  // namespace

QCoro::Task<> ManualClock::sleep(std::chrono::microseconds duration, std::stop_token cancel) {
    slept.push_back(duration);
    if (cancel.stop_requested()) {
        co_return;
    }
    if (autoAdvance) {
        now_ += duration;
        monotonic_ += duration;
        co_return;
    }
    auto sleeper = std::make_shared<Sleeper>(Sleeper{monotonic_ + duration, {}});
    sleepers_.push_back(sleeper);
    const std::stop_callback registration(cancel, [sleeper] { sleeper->wake(); });
    // A named awaiter: GCC 12 destroys a temporary aggregate twice.
    const Wait<Sleeper> wait{sleeper};
    co_await wait;
}

void ManualClock::advance(std::chrono::microseconds duration) {
    const auto target = monotonic_ + duration;
    for (;;) {
        const auto next =
            std::ranges::min_element(sleepers_, {}, [](const auto& sleeper) { return sleeper->until; });
        if (next == sleepers_.end() || (*next)->until > target) {
            break;
        }
        const auto sleeper = *next;
        sleepers_.erase(next);
        const auto step = std::max(sleeper->until - monotonic_, std::chrono::microseconds{0});
        now_ += step;
        monotonic_ += step;
        sleeper->wake();
    }
    now_ += target - monotonic_;
    monotonic_ = target;
}

}  // namespace vantrell::testing
