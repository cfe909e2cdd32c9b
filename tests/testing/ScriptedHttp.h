#pragma once

#include "net/HttpClient.h"

#include <deque>
#include <functional>
#include <vector>

namespace vantrell::testing {

/// Answers from a queue and remembers what it was asked. A request with nothing left to answer it fails the
/// test. With `respond` set, that function answers instead of the queue.
class ScriptedHttp final : public HttpClient {
  public:
    [[nodiscard]] QCoro::Task<HttpResult> get(HttpRequest request, std::stop_token cancel) override;

    void answer(int status, std::string body) { answers.emplace_back(HttpResponse{status, std::move(body)}); }

    std::vector<HttpRequest> requests;
    std::deque<HttpResult> answers;
    std::function<HttpResult(const HttpRequest&)> respond;
    /// Called while a request is out, before its answer is given.
    std::function<void(const HttpRequest&)> whileWaiting;
};

}  // namespace vantrell::testing
