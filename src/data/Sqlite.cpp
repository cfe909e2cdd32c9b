#include "Sqlite.h"

#include <array>
#include <utility>

namespace vantrell {
namespace {

SqliteError sqliteError(int result, sqlite3* database) {
    return database == nullptr
               ? SqliteError(result, sqlite3_errstr(result))
               : SqliteError(result, sqlite3_errmsg(database), sqlite3_system_errno(database));
}

void check(int result, sqlite3* database) {
    if (result != SQLITE_OK) {
        throw sqliteError(result, database);
    }
}

// A file URI is the only way to say "immutable", and a path may hold any byte.
std::string fileURI(const std::string& path, SqliteDatabase::Mode mode) {
    constexpr std::string_view plain = "/-._~0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::array digits{'0', '1', '2', '3', '4', '5', '6', '7',
                                '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
    std::string uri = path.starts_with('/') ? "file://" : "file:";
    for (const char letter : path) {
        if (plain.find(letter) != std::string_view::npos) {
            uri += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        uri += {'%', digits.at(byte / digits.size()), digits.at(byte % digits.size())};
    }
    return mode == SqliteDatabase::Mode::peek ? uri + "?immutable=1" : uri;
}

}  // namespace

SqliteError::SqliteError(int code, const std::string& description, int systemError)
    : std::runtime_error(description), code_(code), systemError_(systemError) {}

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const {
    // The result only repeats the error of the last step, which has been thrown already.
    sqlite3_finalize(statement);
}

void SqliteStatement::failed(int result) const {
    throw sqliteError(result, sqlite3_db_handle(statement_.get()));
}

void SqliteStatement::bind(int index, std::string_view text) {
    // An empty view may have no address, which SQLite would take for NULL.
    const char* bytes = text.empty() ? "" : text.data();
    checkBound(
        sqlite3_bind_text64(statement_.get(), index + 1, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void SqliteStatement::bindNull(int index) {
    checkBound(sqlite3_bind_null(statement_.get(), index + 1));
}

bool SqliteStatement::step() {
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) {
        return true;
    }
    if (result == SQLITE_DONE) {
        return false;
    }
    const SqliteError failure = sqliteError(result, sqlite3_db_handle(statement_.get()));
    reset();
    throw failure;
}

void SqliteStatement::run() {
    while (step()) {
    }
    reset();
}

void SqliteStatement::reset() {
    sqlite3_reset(statement_.get());
}

std::string_view SqliteStatement::text(int column) const {
    const auto* bytes = sqlite3_column_text(statement_.get(), column);
    if (bytes == nullptr) {
        return {};
    }
    const int size = sqlite3_column_bytes(statement_.get(), column);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

bool SqliteStatement::isNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

bool SqliteStatement::isText(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_TEXT;
}

void SqliteDatabase::Closer::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

SqliteDatabase::SqliteDatabase(const std::string& path, Mode mode, const std::string& vfs) {
    const int access =
        mode == Mode::peek ? SQLITE_OPEN_READONLY : (SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    sqlite3* opened = nullptr;
    const int result =
        sqlite3_open_v2(fileURI(path, mode).c_str(), &opened, access | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX,
                        vfs.empty() ? nullptr : vfs.c_str());
    database_.reset(opened);
    check(result, opened);
}

void SqliteDatabase::execute(const std::string& sql) {
    check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr), database_.get());
}

SqliteStatement SqliteDatabase::prepare(std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(database_.get(), sql.data(), static_cast<int>(sql.size()),
                             SQLITE_PREPARE_PERSISTENT, &statement, nullptr),
          database_.get());
    return SqliteStatement(statement);
}

void SqliteDatabase::run(std::string_view sql, std::int64_t parameter) {
    auto statement = prepare(sql);
    statement.bind(0, parameter);
    statement.run();
}

std::int64_t SqliteDatabase::integer(std::string_view sql) {
    auto statement = prepare(sql);
    return statement.step() ? statement.integer(0) : 0;
}

void SqliteDatabase::takeOver(SqliteDatabase& other) {
    sqlite3_backup* const copying =
        sqlite3_backup_init(database_.get(), "main", other.database_.get(), "main");
    if (copying != nullptr) {
        sqlite3_backup_step(copying, -1);
    }
    // Tells what the step met, too.
    check(copying == nullptr ? sqlite3_errcode(database_.get()) : sqlite3_backup_finish(copying),
          database_.get());
}

bool SqliteDatabase::inTransaction() const {
    return sqlite3_get_autocommit(database_.get()) == 0;
}

bool SqliteDatabase::isReadOnly() const {
    return sqlite3_db_readonly(database_.get(), "main") == 1;
}

std::string SqliteDatabase::path() const {
    const char* const path = sqlite3_db_filename(database_.get(), "main");
    return path == nullptr ? std::string() : std::string(path);
}

std::optional<std::string> quickCheck(SqliteDatabase& database) {
    auto check = database.prepare("PRAGMA quick_check(1)");
    if (!check.step() || check.text(0) == "ok") {
        return std::nullopt;
    }
    // The lines above the last only say which database it is.
    const std::string_view found = check.text(0);
    return std::string(found.substr(found.rfind('\n') + 1));
}

SqliteTransaction::SqliteTransaction(SqliteDatabase& database) : database_(database) {
    database_.execute("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction() {
    // After some failures SQLite has rolled back already, and a second ROLLBACK would be an error.
    if (!open_ || !database_.inTransaction()) {
        return;
    }
    try {
        database_.execute("ROLLBACK");
    } catch (const SqliteError&) {
        // The file can't be written; its journal undoes the transaction at the next open.
    }
}

void SqliteTransaction::commit() {
    database_.execute("COMMIT");
    open_ = false;
}

}  // namespace vantrell
