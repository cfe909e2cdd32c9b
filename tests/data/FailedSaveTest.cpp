#include "testing/FaultyVfs.h"
#include "testing/PlainClient.h"
#include "testing/StoreFixture.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vantrell {
namespace {

using testing::FaultyVfs;
using testing::sale;
using testing::StoreFixture;
using testing::unitsOf;

// A second report beside a first one that is replaced, with a status and a log line: what a run does.
void changeEverything(ModelContext& context) {
    context.replaceSalesRows("DAILY", "2026-08-14", {sale(5, "2.5"), sale(-1, "2.5")});
    context.replaceSalesRows("DAILY", "2026-08-15", {sale(7, "0.7")});
    const auto report = context.salesReports().find(salesReportKey("DAILY", "2026-08-14"));
    SalesReport changed = report->record;
    changed.rowCount = 2;
    context.salesReports().update(report->id, changed);
    context.syncLog().insert({.key = "sales daily 2026-08-15", .outcome = "ok"});
}

void fillFirst(ModelContext& context) {
    context.salesReports().insert({.reportDate = "2026-08-14", .statusRaw = "ok", .rowCount = 1});
    context.replaceSalesRows("DAILY", "2026-08-14", {sale(1, "1.1")});
    ASSERT_EQ(context.save(), std::nullopt);
}

struct Fault {
    const char* name;
    void (*begin)(FaultyVfs& vfs, int from);
};

class FailedSave : public ::testing::TestWithParam<Fault> {};

// What the commit of a save that failed has left, if it stands in the file, must neither keep out nor double
// what the next one writes.
TEST_P(FailedSave, KeepsAllChangesForTheNextSaveWhicheverCallFails) {
    FaultyVfs vfs("faulty");
    const std::vector<std::int64_t> after{5, -1, 8};
    // Each call of the save in turn is the first that fails, until none is left to fail.
    for (int failing = 1;; ++failing) {
        SCOPED_TRACE(failing);
        StoreFixture store;
        ModelContext* context = store.open(vfs.name());
        ASSERT_NE(context, nullptr) << store.error();
        fillFirst(*context);
        changeEverything(*context);
        GetParam().begin(vfs, failing);
        const auto error = context->save();
        vfs.failWritesFrom(0, 0);
        vfs.failSyncsFrom(0);
        if (!error) {
            EXPECT_GT(failing, 3) << "a save of this size takes several calls";
            break;
        }
        EXPECT_EQ(context->health().unsaved(), error);
        EXPECT_TRUE(context->hasChanges());
        EXPECT_EQ(unitsOf(*context), (std::vector<std::int64_t>{5, -1, 7}));
        // Other lines, and a log without its line, by the time the disk works again.
        context->replaceSalesRows("DAILY", "2026-08-15", {sale(8, "0.7")});
        context->syncLog().remove(context->syncLog().all().rbegin()->first);
        ASSERT_EQ(context->save(), std::nullopt);
        EXPECT_EQ(context->health().unsaved(), std::nullopt);
        EXPECT_FALSE(context->hasChanges());
        context = store.open(vfs.name());
        ASSERT_NE(context, nullptr) << store.error();
        EXPECT_FALSE(context->health().isDamaged());
        EXPECT_EQ(unitsOf(*context), after);
        EXPECT_EQ(context->salesReports().all().begin()->second.rowCount, 2);
        EXPECT_TRUE(context->syncLog().all().empty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Disk, FailedSave,
    ::testing::Values(Fault{"Full", [](FaultyVfs& vfs, int from) { vfs.failWritesFrom(from, SQLITE_FULL); }},
                      Fault{"Broken",
                            [](FaultyVfs& vfs, int from) { vfs.failWritesFrom(from, SQLITE_IOERR_WRITE); }},
                      Fault{"Unsynced", [](FaultyVfs& vfs, int from) { vfs.failSyncsFrom(from); }}),
    [](const auto& fault) { return fault.param.name; });

TEST(FailedSave, OfOneReportWhoseLinesAreRefusedKeepsItsOldOnesAndLetsAllElseBeSaved) {
    StoreFixture store;
    fillFirst(*store.open());
    store.close();
    testing::changed(store.file(),
                     "CREATE TRIGGER refuse BEFORE INSERT ON sales_line WHEN new.units = 5"
                     " BEGIN SELECT RAISE(ABORT, 'no five'); END");
    ModelContext* context = store.open();
    changeEverything(*context);
    const auto error = context->save();
    ASSERT_TRUE(error && error->report);
    EXPECT_EQ(error->kind, StoreFailure::rejected);
    EXPECT_EQ(*error->report, (ReportName{"DAILY", "2026-08-14"}));
    EXPECT_EQ(context->save(), std::nullopt);
    EXPECT_EQ(unitsOf(*store.open()), (std::vector<std::int64_t>{1, 7}));
}

TEST(FailedSave, LeavesTheOldDataWhenTheProgramEndsThen) {
    FaultyVfs vfs("faulty");
    StoreFixture store;
    ModelContext* context = store.open(vfs.name());
    fillFirst(*context);
    changeEverything(*context);
    vfs.failWritesFrom(2, SQLITE_FULL);
    ASSERT_NE(context->save(), std::nullopt);
    store.close();
    vfs.failWritesFrom(0, 0);
    context = store.open();
    ASSERT_NE(context, nullptr) << store.error();
    EXPECT_EQ(unitsOf(*context), (std::vector<std::int64_t>{1}));
}

}  // namespace
}  // namespace vantrell
