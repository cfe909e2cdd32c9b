#include "base/Worker.h"

namespace vantrell {

QCoro::Task<> ImmediateWorker::perform(std::function<void()> job, std::stop_token cancel) {
    if (!cancel.stop_requested()) {
        job();
    }
    co_return;
}

}  // namespace vantrell
