#include "testing/Cases.h"
#include "testing/Golden.h"
#include "testing/PlainClient.h"
#include "testing/StoreFixture.h"

#include <fstream>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using testing::StoreFixture;

void write(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

TEST(StoreFile, OfSomebodyElseStopsTheStartAndIsNotTouched) {
    using Text = const std::string&;
    testing::expectCases<2>(VANTRELL_TEST_DATA "/foreign-files.tsv", [](Text before, Text content) {
        StoreFixture store;
        if (before == "a store") {
            store.open();
            store.close();
        }
        if (before == "a text") {
            write(store.file(), content);
        } else {
            testing::changed(store.file(), content);
        }
        const std::string bytes = testing::fileText(store.file());
        EXPECT_EQ(store.open(), nullptr);
        EXPECT_EQ(testing::fileText(store.file()), bytes);
        EXPECT_FALSE(fs::exists(store.file().string() + "-journal"));
        return store.error();
    });
}

TEST(StoreFile, InUseCanNotBeOpened) {
    StoreFixture store;
    ASSERT_NE(store.open(), nullptr);
    const auto second = ModelContainer::open({store.file(), CloudDatabase::none, {}});
    EXPECT_EQ(std::get<StoreError>(second).description, "the store is in use by another process");
}

TEST(StoreFile, IsForTheUserAlone) {
    testing::TemporaryFolder folder;
    const fs::path file = folder / "data/vantrell/store.sqlite";
    auto opened = ModelContainer::open({file, CloudDatabase::none, {}});
    ASSERT_TRUE(std::holds_alternative<std::unique_ptr<ModelContainer>>(opened));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
}

TEST(StoreFile, WithoutTablesAndOwnerIsANewStore) {
    for (const char* sql : {"", "BEGIN EXCLUSIVE; COMMIT", "CREATE TABLE t (a); DROP TABLE t; VACUUM"}) {
        StoreFixture store;
        write(store.file(), "");
        testing::changed(store.file(), sql);
        EXPECT_NE(store.open(), nullptr) << store.error() << sql;
    }
}

TEST(StoreFile, OfAProgramThatEndedWhileItWroteGoesBackToTheLastSave) {
    constexpr std::int64_t more = 80'000;  // than SQLite keeps in memory until the commit
    StoreFixture store;
    ModelContext* context = store.open();
    context->replaceSalesRows("DAILY", "2026-08-14", {testing::sale(1, "1")});
    ASSERT_EQ(context->save(), std::nullopt);
    const auto before = fs::file_size(store.file());
    context->replaceSalesRows("DAILY", "2026-08-14", std::vector<SalesRowView>(more, testing::sale(2, "1")));
    while (context->writeAhead()) {
    }
    ASSERT_GT(fs::file_size(store.file()), before) << "else nothing is half written";
    StoreFixture left;
    fs::copy_file(store.file(), left.file());
    fs::copy_file(store.file().string() + "-journal", left.file().string() + "-journal");
    context = left.open();
    ASSERT_NE(context, nullptr) << left.error();
    EXPECT_EQ(testing::unitsOf(*context), std::vector<std::int64_t>{1});
}

TEST(StoreFile, ThatIsNoFileStopsTheStartAtOnce) {
    for (const char* ending : {"", "-journal"}) {
        StoreFixture store;
        if (*ending != '\0') {
            write(store.file(), "");
        }
        ASSERT_EQ(::mkfifo((store.file().string() + ending).c_str(), 0600), 0);
        EXPECT_EQ(store.open(), nullptr);
        EXPECT_TRUE(store.error().ends_with("is no regular file")) << store.error();
    }
}

TEST(StoreFile, ShowsTimesReadably) {
    StoreFixture store;
    ModelContext* context = store.open();
    context->salesReports().insert({.reportDate = "never"});
    context->syncLog().insert({.date = testing::noon(2026, 8, 15) + std::chrono::microseconds(1234)});
    ASSERT_EQ(context->save(), std::nullopt);
    store.close();
    EXPECT_EQ(
        testing::asked(store.file(), "SELECT fetchedAt FROM SalesReport; SELECT date FROM SyncLogEntry"),
        "0001-01-01T00:00:00.000000Z\n2026-08-15T12:00:00.001234Z\n");
}

}  // namespace
}  // namespace vantrell
