// Preloaded into a program, stands between it and the files of one folder: counts the calls that change them,
// writes down what they did, and at a chosen one kills the program or lets the call fail.
//
//   STORAGE_FOLDER   the folder, absolute, without a slash at the end
//   STORAGE_AT       the number of the call at which the fault comes, from 1
//   STORAGE_FAULT    kill, half (a write is done by half, then comes the kill), ENOSPC, EIO or EROFS
//   STORAGE_LASTING  set: all later calls fail as well
//   STORAGE_LOG      a file outside the folder that gets a record for each call that succeeded: a line of
//   kind,
//                    name, offset or length, second name, and number of bytes, then the bytes

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

struct Call {
    std::string_view kind;
    std::string name;
    off_t number = 0;
    std::string secondName;
    const void* bytes = nullptr;
    std::size_t size = 0;
};

const char* setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

template <typename Function>
Function* original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool isInside(std::string_view path) {
    const std::string_view folder = setting("STORAGE_FOLDER");
    return !folder.empty() && path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string linkedPath(const std::string& link) {
    std::array<char, PATH_MAX> path{};
    const auto length = ::readlink(link.c_str(), path.data(), path.size());
    return length <= 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(length));
}

std::string pathOf(int file) {
    return linkedPath("/proc/self/fd/" + std::to_string(file));
}

void writeDown(const Call& call) {
    // There is no file of an empty name.
    static const long log = syscall(SYS_open, setting("STORAGE_LOG"),
                                    O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (log < 0) {
        return;
    }
    const std::size_t root = std::string_view(setting("STORAGE_FOLDER")).size();
    const auto inFolder = [root](const std::string& path) {
        return path.size() > root ? path.substr(root + 1) : std::string();
    };
    std::string head = std::string(call.kind) + "\t" + inFolder(call.name) + "\t" +
                       std::to_string(call.number) + "\t" + inFolder(call.secondName) + "\t" +
                       std::to_string(call.size) + "\n";
    const std::array<iovec, 2> parts{
        {{head.data(), head.size()}, {const_cast<void*>(call.bytes), call.size}}};
    syscall(SYS_writev, log, parts.data(), parts.size());
}

// The error with which the call is to fail, or 0. `half` does the first half of a write.
int faultAt(std::string_view kind, const std::function<void()>& half) {
    static std::atomic<long> calls = 0;
    const long number = ++calls;
    const long chosen = std::atol(setting("STORAGE_AT"));
    const bool isLasting = *setting("STORAGE_LASTING") != '\0';
    if (chosen == 0 || (isLasting ? number < chosen : number != chosen)) {
        return 0;
    }
    const std::string_view fault = setting("STORAGE_FAULT");
    if (fault == "kill" || fault == "half") {
        if (fault == "half") {
            half();
        }
        ::kill(::getpid(), SIGKILL);
    }
    if (fault == "ENOSPC" && kind == "remove") {
        return 0;
    }
    return fault == "ENOSPC" ? ENOSPC : fault == "EROFS" ? EROFS : EIO;
}

template <typename Do>
auto counted(
    Call call, Do run, const std::function<void()>& half = [] {}) -> decltype(run()) {
    if (!isInside(call.name)) {
        return run();
    }
    if (const int error = faultAt(call.kind, half)) {
        errno = error;
        return -1;
    }
    const auto result = run();
    if (result >= 0) {
        call.size = call.kind == "write" ? static_cast<std::size_t>(result) : 0;
        const int kept = errno;
        writeDown(call);
        errno = kept;
    }
    return result;
}

ssize_t writeSome(Call call, const std::function<ssize_t(std::size_t)>& some) {
    const std::size_t size = call.size;
    return counted(
        std::move(call), [&] { return some(size); }, [&] { some(size / 2); });
}

}  // namespace

extern "C" {

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const auto run = [=] { return original<decltype(::open64)>("open64")(path, flags, mode); };
    if ((flags & O_ACCMODE) == O_RDONLY) {
        return run();
    }
    struct stat known {};
    const bool isNew = ::stat(path, &known) != 0;
    return counted({.kind = isNew                    ? "create"
                            : (flags & O_TRUNC) != 0 ? "resize"
                                                     : "open",
                    .name = path},
                   run);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    std::string path = pathOf(file);
    const off_t offset = isInside(path) ? ::lseek(file, 0, SEEK_CUR) : 0;
    return writeSome({"write", std::move(path), offset, {}, bytes, size}, [=](std::size_t count) {
        return original<decltype(::write)>("write")(file, bytes, count);
    });
}

ssize_t pwrite64(int file, const void* bytes, std::size_t size, off_t offset) {
    return writeSome({"write", pathOf(file), offset, {}, bytes, size}, [=](std::size_t count) {
        return original<decltype(::pwrite64)>("pwrite64")(file, bytes, count, offset);
    });
}

int ftruncate64(int file, off_t length) noexcept {
    return counted({"resize", pathOf(file), length},
                   [=] { return original<decltype(::ftruncate64)>("ftruncate64")(file, length); });
}

int fsync(int file) {
    return counted({"sync", pathOf(file)}, [=] { return original<int(int)>("fsync")(file); });
}

int fdatasync(int file) {
    return counted({"sync", pathOf(file)}, [=] { return original<int(int)>("fdatasync")(file); });
}

int unlink(const char* path) noexcept {
    return counted({"remove", path}, [=] { return original<int(const char*)>("unlink")(path); });
}

int rename(const char* from, const char* to) noexcept {
    return counted({"rename", from, 0, to}, [=] { return original<decltype(::rename)>("rename")(from, to); });
}

// How a file gets its name that was written without one.
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return counted({"rename", linkedPath(from), 0, to}, [=] {
        return original<decltype(::linkat)>("linkat")(fromFolder, from, toFolder, to, flags);
    });
}

// The same by the names that programs with 64-bit offsets have for them.
int open(const char* path, int flags, ...) __attribute__((alias("open64")));
ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t offset)
    __attribute__((alias("pwrite64")));
int ftruncate(int file, off_t length) noexcept __attribute__((alias("ftruncate64")));

}  // extern "C"
