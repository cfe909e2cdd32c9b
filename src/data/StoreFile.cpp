#include "StoreFile.h"

#include "Schema.h"
#include "StoreFailures.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms ownerOnly = fs::perms::owner_all;

StoreError systemFailure(const std::string& what, int error) {
    return {what + ": " + std::system_category().message(error), storeFailure(error)};
}

class Descriptor {
  public:
    Descriptor(const fs::path& file, int flags, mode_t mode = 0)
        : descriptor_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (isOpen()) {
            ::close(descriptor_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int number() const { return descriptor_; }

  private:
    int descriptor_;
};

// Where things lie at the beginning of a database; all numbers are big-endian.
constexpr std::string_view magic{"SQLite format 3\0", 16};
constexpr std::size_t largestRootOffset = 52;
constexpr std::size_t versionOffset = 60;
constexpr std::size_t applicationOffset = 68;
constexpr std::size_t firstPageOffset = 100;
constexpr unsigned char leafOfTable = 13;
constexpr std::size_t cellCountOffset = firstPageOffset + 3;

/// The file's first sector, which a disk writes as a whole: what was never written is 0.
struct Beginning {
    std::array<unsigned char, 512> bytes{};
    std::int64_t fileSize = 0;

    [[nodiscard]] std::uint32_t number(std::size_t offset) const {
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < sizeof value; ++index) {
            value = value << 8U | bytes.at(offset + index);
        }
        return value;
    }
    [[nodiscard]] bool isDatabase() const { return std::equal(magic.begin(), magic.end(), bytes.begin()); }
    [[nodiscard]] bool isBlank() const {
        return std::ranges::all_of(bytes, [](unsigned char byte) { return byte == 0; });
    }
    [[nodiscard]] bool hasNoTables() const {
        return bytes.at(firstPageOffset) == leafOfTable && bytes.at(cellCountOffset) == 0 &&
               bytes.at(cellCountOffset + 1) == 0;
    }
    bool operator==(const Beginning&) const = default;
};

fs::path journalOf(const fs::path& file) {
    std::error_code failed;
    fs::path journal = fs::canonical(file, failed);
    if (failed) {
        journal = file;
    }
    journal += "-journal";
    return journal;
}

bool hasJournal(const fs::path& file) {
    std::error_code failed;
    return fs::file_size(journalOf(file), failed) > 0 && !failed;
}

std::optional<StoreError> checkKind(const fs::path& file, const char* name) {
    std::error_code failed;
    const fs::file_status status = fs::status(file, failed);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return StoreError{std::string(name) + " is no regular file"};
    }
    return std::nullopt;
}

std::optional<StoreError> makeFolder(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::exists(folder, error)) {
        return std::nullopt;
    }
    fs::create_directories(folder, error);
    if (!error) {
        fs::permissions(folder, ownerOnly, error);
    }
    return error ? std::optional(systemFailure("the folder of the store can't be made", error.value()))
                 : std::nullopt;
}

std::optional<StoreError> readBeginning(const fs::path& file, Beginning& beginning) {
    // Whatever it was a moment ago, opening must not wait for somebody at its other end.
    const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct stat about {};
    if (!opened.isOpen() || ::fstat(opened.number(), &about) != 0) {
        return systemFailure("the store can't be read", errno);
    }
    beginning.fileSize = about.st_size;
    const ssize_t count = ::pread(opened.number(), beginning.bytes.data(), beginning.bytes.size(), 0);
    return count < 0 ? std::optional(systemFailure("the store can't be read", errno)) : std::nullopt;
}

std::optional<StoreError> judge(const Beginning& beginning, const fs::path& file) {
    if (beginning.fileSize == 0) {
        return std::nullopt;
    }
    if (!beginning.isDatabase()) {
        // A start that was cut off before its first sector was written.
        return beginning.isBlank() && hasJournal(file)
                   ? std::nullopt
                   : std::optional(StoreError{"file is not a database", StoreFailure::damaged});
    }
    const std::uint32_t application = beginning.number(applicationOffset);
    if (application != storeApplicationID && (application != 0 || !beginning.hasNoTables())) {
        return StoreError{"the file belongs to another application"};
    }
    if (beginning.number(versionOffset) > storeVersion) {
        return StoreError{"the store was written by a newer version of Vantrell"};
    }
    // It is 0 in every file that isn't kept small by SQLite itself, which would begin with that at once.
    if (beginning.number(largestRootOffset) != 0) {
        return StoreError{"the header of the store isn't as Vantrell writes it", StoreFailure::damaged};
    }
    return std::nullopt;
}

// While another process writes, what is read may be anything, and the only truth is that it is in use.
std::optional<StoreError> checkFile(const fs::path& file) {
    constexpr int mostLooks = 100;
    Beginning last;
    for (int look = 0; look < mostLooks; ++look) {
        Beginning beginning;
        auto error = readBeginning(file, beginning);
        if (!error) {
            error = judge(beginning, file);
        }
        if (!error) {
            return std::nullopt;
        }
        if (isHeldElsewhere(file)) {
            break;
        }
        if (look > 0 && beginning == last) {
            return error;
        }
        last = beginning;
    }
    return storeInUse();
}

}  // namespace

// An empty file is made first, so that the store never exists with wider permissions.
std::optional<StoreError> makeFile(const fs::path& file) {
    if (auto error = makeFolder(file.parent_path())) {
        return error;
    }
    const Descriptor made(file, O_RDWR | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    // Another start may have been quicker.
    return made.isOpen() || errno == EEXIST ? std::nullopt
                                            : std::optional(systemFailure("the store can't be made", errno));
}

std::optional<StoreError> putInPlace(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) {
        return systemFailure("the copy of the store can't be made", error.value());
    }
    // The folder itself may be new. One that can't be synced is as safe as its file system makes it.
    for (const fs::path& folder : {to.parent_path(), to.parent_path().parent_path()}) {
        const Descriptor opened(folder, O_RDONLY | O_DIRECTORY);
        ::fsync(opened.number());
    }
    return std::nullopt;
}

bool isHeldElsewhere(const fs::path& file) {
    // SQLite's locks are on bytes of their own, a gigabyte into the file.
    constexpr off_t lockedBytes = 0x40000000;
    constexpr off_t lockedCount = 512;
    const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = lockedBytes;
    lock.l_len = lockedCount;
    return opened.isOpen() && ::fcntl(opened.number(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

std::optional<StoreError> prepareStoreFile(const fs::path& file) {
    if (auto error = checkKind(file, "the store")) {
        return error;
    }
    std::error_code ignored;
    if (!fs::exists(file, ignored)) {
        if (auto error = makeFile(file)) {
            return error;
        }
    }
    if (auto error = checkKind(journalOf(file), "the journal of the store")) {
        return error;
    }
    return checkFile(file);
}

}  // namespace vantrell
