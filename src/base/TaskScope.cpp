#include "base/TaskScope.h"

#include <exception>
#include <utility>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>
#include <QtGlobal>

namespace vantrell {

TaskScope::~TaskScope() {
    if (pending_ != 0) {
        qFatal("%d tasks outlive their scope", pending_);
    }
}

void TaskScope::finish(std::chrono::milliseconds patience) {
    const QDeadlineTimer deadline(patience);
    while (pending_ != 0 && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::yieldCurrentThread();
    }
}

void TaskScope::spawn(QCoro::Task<> task) {
    ++pending_;
    // Goes on by itself; `pending_` tells when it has ended.
    static_cast<void>(run(std::move(task)));
}

QCoro::Task<> TaskScope::run(QCoro::Task<> task) {
    try {
        co_await std::move(task);
    } catch (const std::exception& error) {
        qFatal("an exception escaped a task: %s", error.what());
    }
    --pending_;
}

}  // namespace vantrell
