#include "core/EndSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>

namespace vantrell {
namespace {

constexpr std::array signals{SIGTERM, SIGINT, SIGHUP};

// A handler is given nothing but the signal's number.
std::atomic<int> writeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void pass(int /*signal*/) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto count = ::write(writeEnd, &byte, 1);
    errno = before;
}

std::array<int, 2> openPipe() {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qFatal("a pipe for signals could not be made");
    }
    return ends;
}

}  // namespace

EndSignals::EndSignals() : pipe_(openPipe()), notifier_(pipe_[0], QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &EndSignals::take);
    writeEnd = pipe_[1];
    struct sigaction once {};
    once.sa_handler = pass;
    once.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : signals) {
        struct sigaction before {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &once, nullptr);
        }
    }
}

EndSignals::~EndSignals() {
    struct sigaction usual {};
    usual.sa_handler = SIG_DFL;
    for (const int signal : signals) {
        struct sigaction now {};
        ::sigaction(signal, nullptr, &now);
        if (now.sa_handler == pass) {
            ::sigaction(signal, &usual, nullptr);
        }
    }
    for (const int end : pipe_) {
        ::close(end);
    }
}

int EndSignals::exec() const {
    return hasArrived_ ? 0 : QCoreApplication::exec();
}

void EndSignals::take() {
    char byte = 0;
    while (::read(pipe_[0], &byte, 1) > 0) {
    }
    hasArrived_ = true;
    QCoreApplication::quit();
}

}  // namespace vantrell
