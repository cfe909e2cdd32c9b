#include "base/SystemClock.h"

#include <algorithm>
#include <ctime>

#include <QTimer>
#include <qcoro/qcorotimer.h>

namespace vantrell {
namespace {

constexpr std::chrono::microseconds shortest{0};
constexpr std::chrono::microseconds longestTimer = std::chrono::minutes(1);

}  // namespace

Instant SystemClock::now() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::chrono::microseconds SystemClock::monotonic() const {
    // Other clocks stand still while the machine sleeps.
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::seconds(time.tv_sec) +
                                                         std::chrono::nanoseconds(time.tv_nsec));
}

QCoro::Task<> SystemClock::sleep(std::chrono::microseconds duration, std::stop_token cancel) {
    if (cancel.stop_requested()) {
        co_return;
    }
    const auto end = monotonic() + duration;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    const auto startFor = [&timer](std::chrono::microseconds left) {
        // Timers stand still while the machine sleeps, so a long one looks up now and then.
        timer.start(std::chrono::ceil<std::chrono::milliseconds>(std::clamp(left, shortest, longestTimer)));
    };
    startFor(duration);
    // The timer is made to fire rather than deleted: a frame whose awaited object is gone never resumes.
    const std::stop_callback registration(cancel, [&timer] { timer.start(0); });
    co_await qCoro(timer).waitForTimeout();
    while (!cancel.stop_requested() && monotonic() < end) {
        startFor(end - monotonic());
        co_await qCoro(timer).waitForTimeout();
    }
}

}  // namespace vantrell
