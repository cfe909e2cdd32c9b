#include "screens/DriveLoop.h"

namespace vantrell {
namespace {

constexpr auto roundInterval = std::chrono::seconds(900);

}  // namespace

DriveLoop::DriveLoop(const Parts& parts) : parts_(parts) {
    // The only way in which fetched data reaches the screens during a run.
    connect(&parts_.engine, &SyncEngine::revisionChanged, this,
            [this] { parts_.store.reload(parts_.context); });
}

void DriveLoop::start() {
    becameActive();
    parts_.tasks.spawn(repeat(parts_, life_.token()));
}

void DriveLoop::becameActive() {
    parts_.store.reload(parts_.context);
    parts_.tasks.spawn(parts_.engine.autoSyncIfDue());
}

// Takes copies, since a round may outlast the window that began it.
QCoro::Task<> DriveLoop::repeat(Parts parts, CancelToken cancel) {
    while (!cancel.isCancelled()) {
        co_await parts.clock.sleep(roundInterval, cancel);
        if (cancel.isCancelled()) {
            co_return;
        }
        parts.store.reload(parts.context);
        co_await parts.engine.autoSyncIfDue();
    }
}

}  // namespace vantrell
