#pragma once

#include "base/Clock.h"

namespace vantrell {

/// The machine's own clocks, with waits on the event loop of the calling thread.
class SystemClock final : public Clock {
  public:
    [[nodiscard]] Instant now() const override;
    [[nodiscard]] std::chrono::microseconds monotonic() const override;
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::microseconds duration, std::stop_token cancel) override;
};

}  // namespace vantrell
