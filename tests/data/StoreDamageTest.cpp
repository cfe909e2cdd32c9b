#include "data/StoreCheck.h"
#include "testing/Cases.h"
#include "testing/PlainClient.h"
#include "testing/StoreFixture.h"

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
ModelContext& openDamaged(StoreFixture& store, const std::string& sql) {
    ModelContext* context = store.open();
    storeDay(*context, firstDay);
    storeDay(*context, secondDay);
    EXPECT_EQ(context->save(), std::nullopt);
    store.close();
    testing::changed(store.file(), sql);
    context = store.open();
    if (context == nullptr) {
        throw std::runtime_error(store.error());
    }
    return *context;
}

void check(ModelContext& context) {
    ImmediateWorker worker;
    const auto done = checkStore(context, worker, {});
    ASSERT_TRUE(done.isReady());
}

TEST(StoreDamage, IsToldByTheNamesOfTheReportsAndNothingIsSavedOverIt) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/damage-met.tsv", [](const std::string& sql) {
        StoreFixture store;
        ModelContext& context = openDamaged(store, sql);
        std::string read = std::to_string(context.fetchSalesRows().size()) + " |";
        for (const ReportName& report : context.health().damagedReports()) {
            EXPECT_EQ(report.group, "DAILY");
            read += " " + report.label;
        }
        const auto written = std::filesystem::last_write_time(store.file());
        storeDay(context, "2026-08-16");
        EXPECT_EQ(context.save()->kind, StoreFailure::damaged);
        EXPECT_FALSE(context.writeAhead());
        EXPECT_EQ(std::filesystem::last_write_time(store.file()), written);
        return read;
    });
}

TEST(StoreDamage, ThatTheFirstLoadDoesNotMeetIsFoundByTheCheckOfTheFile) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/damage-found.tsv", [](const std::string& sql) {
        StoreFixture store;
        ModelContext& context = openDamaged(store, sql);
        EXPECT_FALSE(context.health().isDamaged());
        check(context);
        return context.health().isDamaged() ? "damaged" : "sound";
    });
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
