#pragma once

#include <chrono>
#include <memory>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// The one door through which a coroutine is started without being awaited. It counts what is under way;
/// an exception that escapes a started task is a bug and ends the program, unless that is ending anyway.
class TaskScope {
  public:
    TaskScope() = default;
    ~TaskScope() = default;
    TaskScope(const TaskScope&) = delete;
    TaskScope& operator=(const TaskScope&) = delete;

    /// Whoever owns what the task refers to cancels what it waits for first.
    void spawn(QCoro::Task<> task);

    [[nodiscard]] int pending() const { return state_->pending; }

    /// Lets the event loop run until no task is under way, for at most `patience`. To be called when all that
    /// they wait for was cancelled, since some learn of it only in their next round.
    void finish(std::chrono::milliseconds patience);

  private:
    struct State {
        int pending = 0;
        bool isEnding = false;
    };

    [[nodiscard]] static QCoro::Task<> run(QCoro::Task<> task, std::shared_ptr<State> state);

    /// With the tasks, since one that did not end in time may outlast the scope.
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace vantrell
