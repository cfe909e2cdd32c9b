#pragma once

#include "net/HttpClient.h"
#include "testing/ManualClock.h"

#include <vector>

namespace vantrell::testing {

/// Gives one answer to every request, once its clock has moved on by a second or the request is cancelled.
class SlowHttp final : public HttpClient {
  public:
    explicit SlowHttp(HttpResponse answer) : answer_(std::move(answer)) { clock.autoAdvance = false; }

    QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) override {
        requests.push_back(std::move(request));
        co_await clock.sleep(std::chrono::seconds(1), std::move(cancel));
        co_return answer_;
    }

    ManualClock clock;
    std::vector<HttpRequest> requests;

  private:
    const HttpResult answer_;  // const, since a coroutine's return would move it away
};

}  // namespace vantrell::testing
