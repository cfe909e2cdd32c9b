#pragma once

#include "base/Worker.h"

#include <QObject>
#include <QThreadPool>

namespace vantrell {

/// One thread of its own, which comes and goes as there is work. Its owner needs an event loop, and waits in
/// the destructor for the job that is under way.
class ThreadWorker final : public Worker {
  public:
    ThreadWorker();

  protected:
    [[nodiscard]] QCoro::Task<> perform(std::function<void()> job, std::stop_token cancel) override;

  private:
    QObject home_;  // where results are handed over; outlives the thread
    QThreadPool pool_;
};

}  // namespace vantrell
