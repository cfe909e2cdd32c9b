#pragma once

#include "base/Clock.h"

#include <functional>
#include <memory>
#include <vector>

namespace vantrell::testing {

/// A clock that stands still until it is moved. By default a sleep moves it by its own length and returns at
/// once, so that a run with pauses takes no time; with `autoAdvance` off a sleeper waits for `advance`.
class ManualClock final : public Clock {
  public:
    /// On 22 November 2026 at noon UTC unless told otherwise.
    explicit ManualClock(Instant start = std::chrono::sys_days{std::chrono::year{2026} / 11 / 22} +
                                         std::chrono::hours{12})
        : now_(start) {}

    [[nodiscard]] Instant now() const override { return now_; }
    [[nodiscard]] std::chrono::microseconds monotonic() const override { return monotonic_; }
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::microseconds duration, std::stop_token cancel) override;

    /// Moves both clocks and wakes, in order of their time, the sleepers whose time has come.
    void advance(std::chrono::microseconds duration);
    /// Sets the wall clock alone, as a user or a time server does.
    void setNow(Instant now) { now_ = now; }

    bool autoAdvance = true;
    std::vector<std::chrono::microseconds> slept;  ///< every duration that was asked for, in order

  private:
    struct Sleeper;
    Instant now_;
    std::chrono::microseconds monotonic_{0};
    std::vector<std::shared_ptr<Sleeper>> sleepers_;
};

}  // namespace vantrell::testing
