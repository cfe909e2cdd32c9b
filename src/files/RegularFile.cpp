#include "files/RegularFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vantrell {
namespace {

FileReadError readError() {
    const int code = errno;
    return code == ENOENT ? FileReadError{"No such file.", true}
                          : FileReadError{std::generic_category().message(code)};
}

class OpenFile {
  public:
    // A pipe without a writer would block, and a terminal take the program over.
    explicit OpenFile(const std::filesystem::path& file)
        : descriptor_(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    ~OpenFile() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

}  // namespace

std::variant<std::string, FileReadError> readRegularFile(const std::filesystem::path& file,
                                                         std::uintmax_t maxBytes) {
    constexpr std::size_t pieceBytes = std::size_t{64} << 10U;
    const OpenFile source(file);
    struct stat about {};
    if (source.descriptor() < 0 || ::fstat(source.descriptor(), &about) != 0) {
        return readError();
    }
    if (!S_ISREG(about.st_mode)) {
        return FileReadError{"It is not a file."};
    }
    // Read and not asked for its size, which may change meanwhile.
    std::string bytes;
    for (;;) {
        const auto held = bytes.size();
        bytes.resize(held + pieceBytes);
        const auto count = ::read(source.descriptor(), bytes.data() + held, pieceBytes);
        if (count < 0 && errno != EINTR) {
            return readError();
        }
        bytes.resize(held + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (bytes.size() > maxBytes) {
            return FileReadError{"The file is too large."};
        }
        if (count == 0) {
            return bytes;
        }
    }
}

}  // namespace vantrell
