#include "data/ModelContainer.h"

#include "data/Schema.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <system_error>
#include <unistd.h>

#include <sqlite3.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms ownerOnly = fs::perms::owner_all;

// An empty file is made first, so that the store never exists with wider permissions.
std::optional<StoreError> createFile(const fs::path& file) {
    std::error_code error;
    const fs::path folder = file.parent_path();
    if (!folder.empty() && !fs::exists(folder, error)) {
        fs::create_directories(folder, error);
        if (!error) {
            fs::permissions(folder, ownerOnly, error);
        }
        if (error) {
            return StoreError{"the folder of the store can't be made: " + error.message()};
        }
    }
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return StoreError{"the store can't be made: " + std::system_category().message(errno)};
    }
    ::close(descriptor);
    return std::nullopt;
}

// Looks before anything could be changed, a recovery from a journal included.
std::optional<StoreError> checkOwner(const ModelConfiguration& configuration) {
    SqliteDatabase database(configuration.file.string(), SqliteDatabase::Mode::peek, configuration.vfs);
    const std::int64_t version = database.integer("PRAGMA user_version");
    if (database.integer("PRAGMA application_id") != storeApplicationID) {
        return StoreError{"the file belongs to another application"};
    }
    if (version > storeVersion) {
        return StoreError{"the store was written by a newer version of Vantrell"};
    }
    return std::nullopt;
}

// A rollback journal rather than a write-ahead log, since a full disk must not stop the start. Exclusive
// locking comes before anything that reads, so that no second process can get in between.
void configure(SqliteDatabase& database) {
    database.execute("PRAGMA locking_mode = EXCLUSIVE");
    if (database.isReadOnly()) {
        return;
    }
    database.execute("BEGIN EXCLUSIVE; COMMIT");
    database.execute("PRAGMA journal_mode = DELETE");
    database.execute("PRAGMA synchronous = FULL");
    // What is deleted is replaced by a fresher copy of the same report: nothing that needs shredding.
    database.execute("PRAGMA secure_delete = OFF");
}

void createIfEmpty(SqliteDatabase& database) {
    if (database.integer("SELECT count(*) FROM sqlite_schema") != 0) {
        return;
    }
    SqliteTransaction transaction(database);
    createSchema(database);
    transaction.commit();
}

StoreError storeError(const SqliteError& error) {
    if ((error.code() & 0xff) == SQLITE_BUSY) {
        return {"the store is in use by another process"};
    }
    return {error.what()};
}

}  // namespace

std::variant<std::unique_ptr<ModelContainer>, StoreError> ModelContainer::open(
    const ModelConfiguration& configuration) {
    if (configuration.cloudDatabase == CloudDatabase::automatic) {
        return StoreError{"this platform has no cloud database"};
    }
    try {
        std::error_code ignored;
        const fs::path& file = configuration.file;
        if (!fs::exists(file, ignored)) {
            if (auto error = createFile(file)) {
                return *error;
            }
        } else if (fs::file_size(file, ignored) != 0) {
            if (auto error = checkOwner(configuration)) {
                return *error;
            }
        }
        auto database = std::make_unique<SqliteDatabase>(file.string(), SqliteDatabase::Mode::readWrite,
                                                         configuration.vfs);
        configure(*database);
        createIfEmpty(*database);
        return std::unique_ptr<ModelContainer>(new ModelContainer(std::move(database)));
    } catch (const SqliteError& error) {
        return storeError(error);
    }
}

ModelContainer::ModelContainer(std::unique_ptr<SqliteDatabase> database)
    : database_(std::move(database)), context_(*database_) {}

}  // namespace vantrell
