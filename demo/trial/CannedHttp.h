#pragma once

#include "base/Clock.h"
#include "net/HttpClient.h"

#include <chrono>
#include <utility>

namespace vantrell {

/// A service that doesn't answer before it is given up.
class SilentHttp final : public HttpClient {
  public:
    explicit SilentHttp(Clock& clock) : clock_(clock) {}

    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest /*request*/, std::stop_token cancel) override {
        co_await clock_.sleep(std::chrono::hours(1), cancel);
        co_return HttpFailure{HttpFailure::Kind::cancelled};
    }

  private:
    Clock& clock_;
};

/// A service that has been asked too often.
class BusyHttp final : public HttpClient {
  public:
    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest /*request*/, std::stop_token /*cancel*/) override {
        co_return HttpResponse{
            429, R"({"errors":[{"status":"429","code":"RATE_LIMIT_EXCEEDED","detail":"Try again later."}]})"};
    }
};

}  // namespace vantrell
