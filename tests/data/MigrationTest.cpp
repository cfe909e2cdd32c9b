#include "Schema.h"
#include "testing/FaultyVfs.h"
#include "testing/Golden.h"
#include "testing/StoreFixture.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using testing::FaultyVfs;
using testing::fileText;
using testing::StoreFixture;

/// Made by the program of that version.
const fs::path kept(VANTRELL_TEST_DATA "/stores/vantrell-1.sqlite");

int appendRow(void* text, int count, char** values, char**) {
    for (int column = 0; column < count; ++column) {
        *static_cast<std::string*>(text) +=
            std::string(column == 0 ? "" : "\t") + (values[column] == nullptr ? "none" : values[column]);
    }
    *static_cast<std::string*>(text) += "\n";
    return 0;
}

/// What the views show to a plain client: the names of their columns and all rows.
std::string shown(const fs::path& file) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    std::string text;
    for (const std::string view :
         {"SalesReport", "SalesRow", "FinanceReport", "FinanceRow", "RateSet", "SyncLogEntry"}) {
        const std::string sql = "SELECT '" + view + ":', group_concat(name, ' ') FROM pragma_table_info('" +
                                view + "'); SELECT * FROM " + view;
        EXPECT_EQ(sqlite3_exec(database, sql.c_str(), appendRow, &text, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
    }
    sqlite3_close(database);
    return text;
}

std::int64_t number(const fs::path& file, const char* sql) {
    return SqliteDatabase(file, SqliteDatabase::Mode::peek).integer(sql);
}

fs::path copyOf(const StoreFixture& store) {
    return store.file().parent_path() / "backup/vantrell-1.sqlite";
}

TEST(Migration, ChangesNothingThatTheViewsShowAndKeepsACopyOfWhatThereWas) {
    StoreFixture store(kept);
    SqliteDatabase(store.file(), SqliteDatabase::Mode::readWrite)
        .execute("CREATE VIEW mine AS SELECT count(*) FROM SalesRow");
    ASSERT_NE(store.open(), nullptr) << store.error();
    store.close();
    EXPECT_EQ(number(store.file(), "PRAGMA user_version"), storeVersion);
    testing::expectMatchesFile(shown(store.file()), VANTRELL_TEST_DATA "/stores/vantrell-1.txt");
    EXPECT_GT(number(store.file(), "SELECT * FROM mine"), 0);
    const fs::path copy = copyOf(store);
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(number(copy, "PRAGMA user_version"), 1);
    EXPECT_EQ(shown(copy), shown(kept));
    fs::remove(copy);
    EXPECT_TRUE(fs::is_empty(copy.parent_path()));
    ASSERT_NE(store.open(), nullptr) << store.error();
    EXPECT_TRUE(fs::is_empty(copy.parent_path())) << "one copy a migration";
}

TEST(Migration, ThatFailsAtAnyCallLeavesTheStoreWholeForTheNextStart) {
    FaultyVfs vfs("faulty-migration");
    const std::string wanted = shown(kept);
    for (const bool isFull : {true, false}) {
        for (int failing = 1;; ++failing) {
            SCOPED_TRACE(failing);
            StoreFixture store(kept);
            vfs.failWritesFrom(isFull ? failing : 0, SQLITE_FULL);
            vfs.failSyncsFrom(isFull ? 0 : failing);
            const bool isOpen = store.open(vfs.name()) != nullptr;
            vfs.failWritesFrom(0, 0);
            vfs.failSyncsFrom(0);
            if (isOpen) {
                EXPECT_GT(failing, 3) << "a copy and a migration take several calls";
                break;
            }
            EXPECT_EQ(store.error(), isFull ? "database or disk is full" : "disk I/O error");
            EXPECT_EQ(shown(store.file()), wanted);
            ASSERT_NE(store.open(), nullptr) << store.error();
            store.close();
            EXPECT_EQ(shown(store.file()), wanted);
        }
    }
}

TEST(Migration, OfADamagedStoreIsRefusedAndAnEarlierCopyStays) {
    StoreFixture store(kept);
    SqliteDatabase(store.file(), SqliteDatabase::Mode::readWrite)
        .execute(
            "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage ="
            " (SELECT rootpage FROM sqlite_schema WHERE name = 'text') WHERE name = 'sync_log'");
    fs::create_directory(copyOf(store).parent_path());
    std::ofstream(copyOf(store)) << "an earlier copy";
    const std::string before = fileText(store.file());
    EXPECT_EQ(store.open(), nullptr);
    EXPECT_EQ(store.error(), "the store is damaged");
    EXPECT_EQ(fileText(store.file()), before);
    EXPECT_EQ(fileText(copyOf(store)), "an earlier copy");
}

}  // namespace
}  // namespace vantrell
