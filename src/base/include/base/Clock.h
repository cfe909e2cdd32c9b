#pragma once

#include "base/Instant.h"

#include <chrono>
#include <stop_token>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Time as a dependency: what the wall clock and a monotonic clock say, and a wait. Nothing above this
/// layer asks the operating system for the time.
class Clock {
  public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual Instant now() const = 0;

    /// Time since some fixed moment; never goes back, whatever happens to the wall clock.
    [[nodiscard]] virtual std::chrono::microseconds monotonic() const = 0;

    /// Resumes after `duration`, or at once when `cancel` is cancelled; tell the two apart by the token. No
    /// duration at all lets the event loop do what waits there.
    [[nodiscard]] virtual QCoro::Task<> sleep(std::chrono::microseconds duration, std::stop_token cancel) = 0;
};

}  // namespace vantrell
