#include "PlainDatabase.h"

#include <stdexcept>

#include <sqlite3.h>

namespace vantrell::bench {
namespace {

void check(int result, sqlite3* database) {
    if (result != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

}  // namespace

void CloseDatabase::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

void FinalizeStatement::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

PlainDatabase openPlain(const std::filesystem::path& file) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(
        file.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    PlainDatabase database(opened);
    check(result, opened);
    execute(opened,
            "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL");
    return database;
}

void execute(sqlite3* database, const char* sql) {
    check(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), database);
}

PlainStatement prepare(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr), database);
    return PlainStatement(statement);
}

}  // namespace vantrell::bench
