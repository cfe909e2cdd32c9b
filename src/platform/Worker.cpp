#include "platform/Worker.h"

namespace vantrell {

QCoro::Task<> ImmediateWorker::perform(std::function<void()> job, CancelToken cancel) {
    if (!cancel.isCancelled()) {
        job();
    }
    co_return;
}

}  // namespace vantrell
