#include "base/SystemClock.h"

#include <algorithm>

#include <QTimer>
#include <qcoro/qcorotimer.h>

namespace vantrell {

Instant SystemClock::now() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::chrono::microseconds SystemClock::monotonic() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

QCoro::Task<> SystemClock::sleep(std::chrono::microseconds duration, std::stop_token cancel) {
    if (cancel.stop_requested()) {
        co_return;
    }
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    timer.start(
        std::max(std::chrono::ceil<std::chrono::milliseconds>(duration), std::chrono::milliseconds(0)));
    // The timer is made to fire rather than deleted: a frame whose awaited object is gone never resumes.
    const std::stop_callback registration(cancel, [&timer] { timer.start(0); });
    co_await qCoro(timer).waitForTimeout();
}

}  // namespace vantrell
