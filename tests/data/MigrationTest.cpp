#include "Schema.h"
#include "testing/FaultyVfs.h"
#include "testing/Golden.h"
#include "testing/PlainClient.h"
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

/// What the views show to a plain client: the names of their columns and all rows.
std::string shown(const fs::path& file) {
    std::string text;
    for (const std::string view :
         {"SalesReport", "SalesRow", "FinanceReport", "FinanceRow", "RateSet", "SyncLogEntry"}) {
        text +=
            testing::asked(file, "SELECT '" + view + ":', group_concat(name, ' ') FROM pragma_table_info('" +
                                     view + "'); SELECT * FROM " + view);
    }
    return text;
}

fs::path copyOf(const StoreFixture& store) {
    return store.file().parent_path() / "backup/vantrell-1.sqlite";
}

TEST(Migration, ChangesNothingThatTheViewsShowAndKeepsACopyOfWhatThereWas) {
    StoreFixture store(kept);
    testing::changed(store.file(), "CREATE VIEW mine AS SELECT count(*) FROM SalesRow");
    ASSERT_NE(store.open(), nullptr) << store.error();
    store.close();
    EXPECT_EQ(testing::asked(store.file(), "PRAGMA user_version"), std::to_string(storeVersion) + "\n");
    testing::expectMatchesFile(shown(store.file()), VANTRELL_TEST_DATA "/stores/vantrell-1.txt");
    EXPECT_NE(testing::asked(store.file(), "SELECT * FROM mine"), "0\n");
    const fs::path copy = copyOf(store);
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(testing::asked(copy, "PRAGMA user_version"), "1\n");
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
            testing::changed(store.file(), "BEGIN IMMEDIATE; COMMIT");  // plays back what was left
            EXPECT_EQ(shown(store.file()), wanted);
            ASSERT_NE(store.open(), nullptr) << store.error();
            store.close();
            EXPECT_EQ(shown(store.file()), wanted);
        }
    }
}

TEST(Migration, OfADamagedStoreIsRefusedAndAnEarlierCopyStays) {
    StoreFixture store(kept);
    testing::changed(store.file(),
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
