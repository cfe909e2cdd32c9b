#pragma once

#include <chrono>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// The one door through which a coroutine is started without being awaited. It counts what is under way;
/// an exception that escapes a started task is a bug and ends the program.
class TaskScope {
  public:
    TaskScope() = default;
    ~TaskScope();
    TaskScope(const TaskScope&) = delete;
    TaskScope& operator=(const TaskScope&) = delete;

    /// The scope must outlive the task: whoever owns both cancels what the task waits for first.
    void spawn(QCoro::Task<> task);

    [[nodiscard]] int pending() const { return pending_; }

    /// Lets the event loop run until no task is under way, for at most `patience`. To be called when all that
    /// they wait for was cancelled, since some learn of it only in their next round.
    void finish(std::chrono::milliseconds patience);

  private:
    [[nodiscard]] QCoro::Task<> run(QCoro::Task<> task);

    int pending_ = 0;
};

}  // namespace vantrell
