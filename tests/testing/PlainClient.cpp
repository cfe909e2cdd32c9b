#include "testing/PlainClient.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vantrell::testing {
namespace {

int appendRow(void* text, int count, char** values, char** /*names*/) {
    std::string& rows = *static_cast<std::string*>(text);
    for (int column = 0; column < count; ++column) {
        const char* const value = values[column];
        rows.append(column == 0 ? "" : "\t").append(value == nullptr ? "none" : value);
    }
    rows += "\n";
    return 0;
}

std::string run(const std::string& name, int flags, const std::string& sql) {
    sqlite3* database = nullptr;
    std::string rows;
    const bool isDone =
        sqlite3_open_v2(name.c_str(), &database, flags | SQLITE_OPEN_URI, nullptr) == SQLITE_OK &&
        sqlite3_exec(database, sql.c_str(), appendRow, &rows, nullptr) == SQLITE_OK;
    EXPECT_TRUE(isDone) << sql << ": " << sqlite3_errmsg(database);
    sqlite3_close(database);
    return rows;
}

}  // namespace

std::string asked(const std::filesystem::path& file, const std::string& sql) {
    return run("file:" + file.string() + "?immutable=1", SQLITE_OPEN_READONLY, sql);
}

void changed(const std::filesystem::path& file, const std::string& sql) {
    run(file.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, sql);
}

}  // namespace vantrell::testing
