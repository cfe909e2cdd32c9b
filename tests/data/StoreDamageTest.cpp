#include "data/StoreCheck.h"
#include "testing/StoreFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::sale;
using testing::StoreFixture;

constexpr const char* firstDay = "2026-08-14";
constexpr const char* secondDay = "2026-08-15";

void storeDay(ModelContext& context, const char* day) {
    context.salesReports().insert({.reportDate = day, .statusRaw = "ok", .rowCount = 2});
    context.replaceSalesRows("DAILY", day, {sale(1, "1.5"), sale(2, "2.5")});
}

/// Two days of two lines each, changed by a plain client.
ModelContext* openDamaged(StoreFixture& store, const std::string& sql) {
    ModelContext* context = store.open();
    storeDay(*context, firstDay);
    storeDay(*context, secondDay);
    EXPECT_EQ(context->save(), std::nullopt);
    store.close();
    SqliteDatabase(store.file(), SqliteDatabase::Mode::readWrite).execute(sql);
    return store.open();
}

void check(ModelContext& context) {
    ImmediateWorker worker;
    const auto done = checkStore(context, worker, {});
    ASSERT_TRUE(done.isReady());
}

TEST(StoreDamage, IsToldByTheNamesOfTheReportsAndNothingIsSavedOverIt) {
    using Names = std::vector<ReportName>;
    struct Case {
        const char* name;
        const char* sql;
        Names damaged;
        std::size_t rows;  // that can still be read
    };
    const ReportName first{"DAILY", firstDay};
    const ReportName second{"DAILY", secondDay};
    const std::vector<Case> cases = {
        {"a line is missing", "DELETE FROM sales_line WHERE id = 2", {first}, 3},
        {"all lines are missing", "DELETE FROM sales_line", {first, second}, 0},
        {"what names the lines is missing", "DELETE FROM sales_batch WHERE id = 2", {second}, 2},
        {"more lines than there are", "UPDATE sales_batch SET lineCount = 9 WHERE id = 2", {second}, 4},
        {"the lines of another report",
         "UPDATE sales_batch SET lineCount = 4 WHERE id = 1",
         {first, second},
         4},
        {"numbers out of range",
         "UPDATE sales_batch SET firstLine = 9223372036854775807 WHERE id = 1",
         {first},
         2},
        {"a count below 0", "UPDATE sales_batch SET lineCount = -1 WHERE id = 2", {second}, 2},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        StoreFixture store;
        ModelContext* context = openDamaged(store, row.sql);
        ASSERT_NE(context, nullptr) << store.error();
        EXPECT_EQ(context->fetchSalesRows().size(), row.rows);
        EXPECT_EQ(context->health().damagedReports(), row.damaged);
        const auto written = std::filesystem::last_write_time(store.file());
        storeDay(*context, "2026-08-16");
        EXPECT_EQ(context->save()->kind, StoreFailure::damaged);
        EXPECT_FALSE(context->writeAhead());
        EXPECT_EQ(std::filesystem::last_write_time(store.file()), written);
    }
}

TEST(StoreDamage, ThatTheFirstLoadDoesNotMeetIsFoundByTheCheckOfTheFile) {
    struct Case {
        const char* name;
        const char* sql;
        bool isDamaged;
    };
    const std::vector<Case> cases = {
        {"nothing", "", false},
        {"a page is used twice",
         "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage ="
         " (SELECT rootpage FROM sqlite_schema WHERE name = 'rate_set') WHERE name = 'sync_log'",
         true},
        {"an offer that isn't there", "UPDATE sales_line SET offer = 77 WHERE id = 1", true},
        {"a text that isn't there", "UPDATE sales_offer SET proceedsCurrency = 77 WHERE id = 1", true},
        {"all texts are missing", "DELETE FROM text; UPDATE sales_line SET country = 1 WHERE id = 3", true},
        {"units that are no number", "UPDATE sales_line SET units = 'two' WHERE id = 1", true},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        StoreFixture store;
        ModelContext* context = openDamaged(store, row.sql);
        ASSERT_NE(context, nullptr) << store.error();
        EXPECT_FALSE(context->health().isDamaged());
        check(*context);
        EXPECT_EQ(context->health().isDamaged(), row.isDamaged) << context->health().damage();
    }
}

TEST(StoreDamage, IsLookedForBeforeWhatIsSavedMeanwhileIsWritten) {
    StoreFixture store;
    ModelContext* context = store.open();
    context->holdSaves(true);
    storeDay(*context, firstDay);
    EXPECT_EQ(context->save(), std::nullopt);
    EXPECT_TRUE(context->hasChanges());
    check(*context);
    EXPECT_FALSE(context->hasChanges());
    EXPECT_EQ(store.open()->fetchSalesRows().size(), 2U);
}

}  // namespace
}  // namespace vantrell
