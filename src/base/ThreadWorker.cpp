#include "base/ThreadWorker.h"

#include <coroutine>

#include <QFutureWatcher>
#include <QPromise>

namespace vantrell {
namespace {

/// A coroutine that waits; touched on the thread that waits only.
struct Waiter {
    std::coroutine_handle<> waiting;

    void wake() {
        if (auto handle = std::exchange(waiting, {})) {
            handle.resume();
        }
    }
};

struct Wait {
    std::shared_ptr<Waiter> waiter;
    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> handle) const { waiter->waiting = handle; }
    void await_resume() const noexcept {}
};

}  // namespace

ThreadWorker::ThreadWorker() {
    pool_.setMaxThreadCount(1);
}

QCoro::Task<> ThreadWorker::perform(std::function<void()> job, std::stop_token cancel) {
    if (cancel.stop_requested()) {
        co_return;
    }
    auto waiter = std::make_shared<Waiter>();
    const std::stop_callback registration(cancel, [waiter] { waiter->wake(); });
    auto promise = std::make_shared<QPromise<void>>();
    auto* const watcher = new QFutureWatcher<void>(&home_);
    QObject::connect(watcher, &QFutureWatcherBase::finished, watcher, [watcher, waiter] {
        watcher->deleteLater();
        waiter->wake();
    });
    watcher->setFuture(promise->future());
    pool_.start([promise, job = std::move(job)] {
        promise->start();
        job();
        promise->finish();
    });
    // A named awaiter: GCC 12 destroys a temporary aggregate twice.
    const Wait wait{waiter};
    co_await wait;
}

}  // namespace vantrell
