#include "base/TaskScope.h"

#include <exception>
#include <utility>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>
#include <QtGlobal>

namespace vantrell {

void TaskScope::finish(std::chrono::milliseconds patience) {
    state_->isEnding = true;
    const QDeadlineTimer deadline(patience);
    while (pending() != 0 && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::yieldCurrentThread();
    }
}

void TaskScope::spawn(QCoro::Task<> task) {
    ++state_->pending;
    // Goes on by itself; `state_` tells when it has ended.
    static_cast<void>(run(std::move(task), state_));
}

QCoro::Task<> TaskScope::run(QCoro::Task<> task, std::shared_ptr<State> state) {
    try {
        co_await std::move(task);
    } catch (const std::exception& error) {
        if (!state->isEnding) {
            qFatal("an exception escaped a task: %s", error.what());
        }
        qWarning("an exception escaped a task at the end: %s", error.what());
    }
    --state->pending;
}

}  // namespace vantrell
