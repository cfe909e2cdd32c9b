#include "testing/ScriptedHttp.h"

#include <gtest/gtest.h>

namespace vantrell::testing {

QCoro::Task<HttpResult> ScriptedHttp::get(HttpRequest request, std::stop_token cancel) {
    requests.push_back(request);
    if (whileWaiting) {
        whileWaiting(request);
    }
    if (cancel.stop_requested()) {
        co_return HttpFailure{HttpFailure::Kind::cancelled};
    }
    if (respond) {
        co_return respond(request);
    }
    if (answers.empty()) {
        ADD_FAILURE() << "no answer is scripted for " << request.url;
        co_return HttpFailure{};
    }
    auto answer = std::move(answers.front());
    answers.pop_front();
    co_return answer;
}

}  // namespace vantrell::testing
