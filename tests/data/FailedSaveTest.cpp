#include "testing/FaultyVfs.h"
#include "testing/StoreFixture.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vantrell {
namespace {

using testing::FaultyVfs;
using testing::sale;
using testing::StoreFixture;

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

std::vector<std::int64_t> unitsOf(ModelContext& context) {
    std::vector<std::int64_t> units;
    for (const SalesRow& row : context.fetchSalesRows()) {
        units.push_back(row.line.units);
    }
    return units;
}

class FailedSave : public ::testing::TestWithParam<int> {};

TEST_P(FailedSave, KeepsAllChangesForTheNextSaveWhicheverWriteFails) {
    FaultyVfs vfs("faulty");
    const std::vector<std::int64_t> before{1};
    const std::vector<std::int64_t> after{5, -1, 7};
    // Each write of the save in turn is the first that fails, until none is left to fail.
    for (int failing = 1;; ++failing) {
        StoreFixture store;
        ModelContext* context = store.open(vfs.name());
        ASSERT_NE(context, nullptr) << store.error();
        fillFirst(*context);
        changeEverything(*context);
        vfs.failWritesFrom(failing, GetParam());
        const auto error = context->save();
        if (!error) {
            EXPECT_GT(failing, 3) << "a save of this size takes several writes";
            break;
        }
        EXPECT_FALSE(error->description.empty());
        EXPECT_TRUE(context->hasChanges());
        EXPECT_EQ(unitsOf(*context), after) << "write " << failing;
        vfs.failWritesFrom(0, 0);
        ASSERT_EQ(context->save(), std::nullopt) << "write " << failing;
        EXPECT_FALSE(context->hasChanges());
        context = store.open(vfs.name());
        ASSERT_NE(context, nullptr) << store.error();
        EXPECT_EQ(unitsOf(*context), after) << "write " << failing;
        EXPECT_EQ(context->salesReports().all().begin()->second.rowCount, 2);
        EXPECT_EQ(context->syncLog().all().size(), 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(Disk, FailedSave, ::testing::Values(SQLITE_FULL, SQLITE_IOERR_WRITE),
                         [](const auto& fault) { return fault.param == SQLITE_FULL ? "Full" : "Broken"; });

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
