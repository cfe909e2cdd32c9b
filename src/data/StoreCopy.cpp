#include "StoreCopy.h"

#include "StoreFailures.h"
#include "StoreFile.h"

#include <system_error>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

/// A file that is gone with this object unless it got its name.
class Draft {
  public:
    explicit Draft(const fs::path& target) : path_(target.string() + ".new") { remove(); }
    ~Draft() { remove(); }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    [[nodiscard]] const fs::path& path() const { return path_; }

  private:
    void remove() const {
        std::error_code ignored;
        for (const char* const ending : {"", "-journal"}) {
            fs::remove(path_.string() + ending, ignored);
        }
    }
    fs::path path_;
};

}  // namespace

std::optional<StoreError> copyStore(SqliteDatabase& store, const fs::path& file, const std::string& vfs) {
    const Draft draft(file);
    if (auto error = makeFile(draft.path())) {
        return error;
    }
    SqliteDatabase(draft.path(), SqliteDatabase::Mode::readWrite, vfs).takeOver(store);
    SqliteDatabase copy(draft.path(), SqliteDatabase::Mode::peek, vfs);
    if (quickCheck(copy)) {
        return damagedStore();
    }
    return putInPlace(draft.path(), file);
}

}  // namespace vantrell
