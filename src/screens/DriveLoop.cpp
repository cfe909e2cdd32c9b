#include "screens/DriveLoop.h"

namespace vantrell {
namespace {

constexpr auto roundInterval = std::chrono::seconds(900);
constexpr auto keyPatience = std::chrono::seconds(30);

}  // namespace

DriveLoop::DriveLoop(const Parts& parts) : parts_(parts), keyRead_(parts.clock.monotonic()) {
    // The only way in which fetched data reaches the screens during a run.
    connect(&parts_.engine, &SyncEngine::revisionChanged, this,
            [this] { parts_.tasks.spawn(reloadNext(parts_, life_.token())); });
}

void DriveLoop::start() {
    parts_.engine.askForRatesFirst();
    parts_.tasks.spawn(begin(parts_, life_.token()));
    parts_.tasks.spawn(repeat(parts_, life_.token()));
}

void DriveLoop::becameActive() {
    // A keyring may ask for its password, and the window is active again when that was refused.
    const auto now = parts_.clock.monotonic();
    if (now - keyRead_ >= keyPatience) {
        parts_.engine.account().readAgain();
        keyRead_ = parts_.clock.monotonic();
    }
    parts_.tasks.spawn(goRound(parts_, life_.token()));
}

// These take copies, since a round may outlast the window that began it.

QCoro::Task<> DriveLoop::reload(Parts parts, std::stop_token cancel) {
    while (parts.store.readAhead(parts.context)) {
        co_await parts.clock.sleep(std::chrono::microseconds::zero(), cancel);
        if (cancel.stop_requested()) {
            co_return;
        }
    }
    parts.store.reload(parts.context);
}

// The engine has just saved: the window may move before the figures do.
QCoro::Task<> DriveLoop::reloadNext(Parts parts, std::stop_token cancel) {
    co_await parts.clock.sleep(std::chrono::microseconds::zero(), cancel);
    if (!cancel.stop_requested()) {
        co_await reload(parts, cancel);
    }
}

// Figures first: what they are worth is known a moment later, and before anything is fetched.
QCoro::Task<> DriveLoop::begin(Parts parts, std::stop_token cancel) {
    co_await reload(parts, cancel);
    if (!cancel.stop_requested()) {
        co_await parts.engine.checkStore();
    }
    if (!cancel.stop_requested()) {
        co_await parts.engine.takeRatesFirst();
    }
    if (!cancel.stop_requested()) {
        co_await parts.engine.autoSyncIfDue();
    }
}

QCoro::Task<> DriveLoop::goRound(Parts parts, std::stop_token cancel) {
    co_await reload(parts, cancel);
    if (!cancel.stop_requested()) {
        parts.engine.savePending();
        co_await parts.engine.autoSyncIfDue();
    }
}

QCoro::Task<> DriveLoop::repeat(Parts parts, std::stop_token cancel) {
    while (!cancel.stop_requested()) {
        co_await parts.clock.sleep(roundInterval, cancel);
        if (!cancel.stop_requested()) {
            co_await goRound(parts, cancel);
        }
    }
}

}  // namespace vantrell
