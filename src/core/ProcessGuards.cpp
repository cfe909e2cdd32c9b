#include "core/ProcessGuards.h"

#include <csignal>
#include <sys/resource.h>

namespace vantrell {

void setProcessGuards() {
    // One byte and not none: the kernel takes it for "no dump" also where dumps go to a program, which is
    // started for a limit of 0 as well. Telling the kernel that the process isn't dumpable would do the same,
    // but lock the desktop's portals out, which look up who asks.
    constexpr rlimit noDump{1, 1};
    ::setrlimit(RLIMIT_CORE, &noDump);
    // A handler and not "ignore", which programs that are started from here would inherit.
    struct sigaction tooLarge {};
    tooLarge.sa_handler = [](int) {};
    tooLarge.sa_flags = SA_RESTART;
    ::sigaction(SIGXFSZ, &tooLarge, nullptr);
}

}  // namespace vantrell
