#pragma once

#include "MemoryService.h"
#include "base/SystemClock.h"

namespace vantrell::bench {

/// Answers like a service far away: from memory, but only after the event loop had its turn.
class LaterService final : public HttpClient {
  public:
    explicit LaterService(HttpClient& service) : service_(service) {}

    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) override {
        co_await clock_.sleep(std::chrono::milliseconds(5), cancel);
        co_return co_await service_.get(std::move(request), cancel);
    }

  private:
    HttpClient& service_;
    SystemClock clock_;
};

}  // namespace vantrell::bench
