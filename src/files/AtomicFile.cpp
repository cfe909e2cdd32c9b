#include "files/AtomicFile.h"

#include "FilesLog.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include <QRandomGenerator>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr mode_t ownerFile = S_IRUSR | S_IWUSR;
constexpr mode_t usualFile = ownerFile | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
constexpr mode_t permissionBits = 0777;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::string told(const fs::path& file, const std::error_code& error) {
    return file.string() + ": " + error.message();
}

/// A file beside its target, gone with this object unless it took the target's place.
class Draft {
  public:
    Draft(fs::path target, mode_t mode) : target_(std::move(target)) {
        constexpr int tries = 20;
        for (int count = 0; count < tries && descriptor_ < 0; ++count) {
            fs::path path = target_;
            path += "." + std::to_string(QRandomGenerator::global()->generate());
            descriptor_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (descriptor_ >= 0) {
                path_ = std::move(path);
            } else if (errno != EEXIST) {
                return;
            }
        }
    }
    ~Draft() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
        if (!path_.empty() && !isInPlace_) {
            ::unlink(path_.c_str());
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    [[nodiscard]] bool isMade() const { return descriptor_ >= 0; }

    [[nodiscard]] bool write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = ::write(descriptor_, bytes.data(), bytes.size());
            if (count < 0 && errno != EINTR) {
                return false;
            }
            bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
        }
        return true;
    }

    [[nodiscard]] bool setMode(mode_t mode) const { return ::fchmod(descriptor_, mode) == 0; }

    /// Some file systems have nothing to synchronise, and others tell of a full disk only when closing.
    [[nodiscard]] bool finish() {
        const bool isOnDisk = ::fsync(descriptor_) == 0 || errno == EINVAL || errno == ENOTSUP;
        return isOnDisk && ::close(std::exchange(descriptor_, -1)) == 0;
    }

    [[nodiscard]] bool takePlace() {
        isInPlace_ = ::rename(path_.c_str(), target_.c_str()) == 0;
        return isInPlace_;
    }

  private:
    fs::path target_;
    fs::path path_;
    int descriptor_ = -1;
    bool isInPlace_ = false;
};

std::error_code makeFolder(const fs::path& folder, Readers readers) {
    std::error_code failed;
    // Folders above may be shared with other programs and get the usual permissions.
    const bool isNew = !folder.empty() && fs::create_directories(folder, failed);
    if (isNew && readers == Readers::ownerOnly) {
        fs::permissions(folder, fs::perms::owner_all, failed);
    }
    return failed;
}

}  // namespace

std::optional<std::string> writeAtomically(const fs::path& file, std::string_view bytes, Readers readers) {
    if (const auto failed = makeFolder(file.parent_path(), readers)) {
        return told(file.parent_path(), failed);
    }
    std::error_code failed;
    // A link stays one.
    const fs::path target = fs::is_symlink(file, failed) ? fs::weakly_canonical(file, failed) : file;
    struct stat old {};
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    if (replaces && !S_ISREG(old.st_mode)) {
        return told(file, std::make_error_code(S_ISDIR(old.st_mode) ? std::errc::is_a_directory
                                                                    : std::errc::invalid_argument));
    }
    const bool takesOver = replaces && readers == Readers::asUsual;
    Draft draft(target, readers == Readers::ownerOnly || takesOver ? ownerFile : usualFile);
    const bool isDone = draft.isMade() && draft.write(bytes) &&
                        (!takesOver || draft.setMode(old.st_mode & permissionBits)) && draft.finish() &&
                        draft.takePlace();
    if (isDone) {
        return std::nullopt;
    }
    auto problem = told(file, lastError());
    qCWarning(filesLog) << problem.c_str();
    return problem;
}

}  // namespace vantrell
