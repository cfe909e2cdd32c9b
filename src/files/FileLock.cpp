#include "files/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell {
namespace {

bool isOurs(int descriptor) {
    struct stat about {};
    return ::fstat(descriptor, &about) == 0 && about.st_uid == ::geteuid();
}

}  // namespace

FileLock::FileLock(const std::filesystem::path& file)
    : descriptor_(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR)),
      state_(take()) {}

FileLock::~FileLock() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

FileLock::State FileLock::take() const {
    // In a folder for everybody, somebody else's file would keep us out for good.
    if (descriptor_ < 0 || !isOurs(descriptor_)) {
        return State::unavailable;
    }
    if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) {
        return State::held;
    }
    return errno == EWOULDBLOCK ? State::heldElsewhere : State::unavailable;
}

}  // namespace vantrell
