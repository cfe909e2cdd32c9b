#include "data/ModelContainer.h"

#include "FileCheck.h"
#include "Migrations.h"
#include "Schema.h"
#include "StoreCopy.h"
#include "StoreFailures.h"
#include "StoreFile.h"

#include <optional>

namespace vantrell {
namespace {

// Once more, now that no other process can write and SQLite has mended what a crash has left.
std::optional<StoreError> checkOwner(SqliteDatabase& database) {
    const std::int64_t application = database.integer("PRAGMA application_id");
    if (database.integer("SELECT count(*) FROM sqlite_schema") == 0) {
        return application == storeApplicationID
                   ? std::optional(StoreError{"the tables of the store are missing", StoreFailure::damaged})
                   : std::nullopt;
    }
    if (application != storeApplicationID) {
        return StoreError{"the file belongs to another application"};
    }
    const std::int64_t version = database.integer("PRAGMA user_version");
    if (version > storeVersion) {
        return StoreError{"the store was written by a newer version of Vantrell"};
    }
    return version < 1 ? std::optional(damagedStore()) : std::nullopt;
}

// What marks a new store as ours comes with its tables, in one transaction: a file without either is a new
// one. The lock comes with it and stays, so that no second process can get in between.
std::optional<StoreError> createIfNew(SqliteDatabase& database) {
    database.execute("BEGIN EXCLUSIVE");
    if (auto error = checkOwner(database)) {
        database.execute("ROLLBACK");
        return error;
    }
    if (database.integer("SELECT count(*) FROM sqlite_schema") == 0) {
        createSchema(database);
    }
    database.execute("COMMIT");
    return std::nullopt;
}

// A store of an older version is copied into the folder beside it before it is changed.
std::optional<StoreError> bringUpToDate(SqliteDatabase& database, const ModelConfiguration& configuration) {
    const std::int64_t version = database.integer("PRAGMA user_version");
    if (version == storeVersion) {
        return std::nullopt;
    }
    const std::filesystem::path& file = configuration.file;
    const std::string name = file.stem().string() + "-" + std::to_string(version) + file.extension().string();
    if (auto error = copyStore(database, file.parent_path() / "backup" / name, configuration.vfs)) {
        return error;
    }
    migrate(database, version);
    return std::nullopt;
}

// A rollback journal rather than a write-ahead log, since a full disk must not stop the start. Exclusive
// locking comes before anything that reads.
std::optional<StoreError> configure(SqliteDatabase& database) {
    database.execute("PRAGMA locking_mode = EXCLUSIVE");
    if (database.isReadOnly()) {
        return checkOwner(database);
    }
    if (auto error = createIfNew(database)) {
        return error;
    }
    database.execute("PRAGMA journal_mode = DELETE");
    database.execute("PRAGMA synchronous = FULL");
    // What is deleted is replaced by a fresher copy of the same report: nothing that needs shredding.
    database.execute("PRAGMA secure_delete = OFF");
    return std::nullopt;
}

}  // namespace

std::variant<std::unique_ptr<ModelContainer>, StoreError> ModelContainer::open(
    const ModelConfiguration& configuration) {
    if (configuration.cloudDatabase == CloudDatabase::automatic) {
        return StoreError{"this platform has no cloud database"};
    }
    if (auto error = prepareStoreFile(configuration.file)) {
        return *error;
    }
    try {
        auto database = std::make_unique<SqliteDatabase>(configuration.file.string(),
                                                         SqliteDatabase::Mode::readWrite, configuration.vfs);
        if (auto error = configure(*database)) {
            return *error;
        }
        if (auto error = bringUpToDate(*database, configuration)) {
            return *error;
        }
        return std::unique_ptr<ModelContainer>(new ModelContainer(std::move(database)));
    } catch (const SqliteError& error) {
        // Two that start at once can meet where SQLite has another name for it.
        return isHeldElsewhere(configuration.file) ? storeInUse() : storeError(error);
    }
}

ModelContainer::ModelContainer(std::unique_ptr<SqliteDatabase> database)
    : fileCheck_(std::make_shared<FileCheck>(database->path())),
      database_(std::move(database)),
      context_(*database_, fileCheck_) {}

ModelContainer::~ModelContainer() = default;

}  // namespace vantrell
