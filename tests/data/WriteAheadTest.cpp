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

constexpr std::int64_t few = 6'000;
constexpr const char* day = "2026-08-14";

/// A report too long for one step, told by its units.
std::vector<SalesRowView> longReport(std::int64_t units, std::int64_t lines = few) {
    return std::vector<SalesRowView>(static_cast<std::size_t>(lines), sale(units, "1"));
}

std::int64_t linesInFile(const StoreFixture& store) {
    return std::stoll(testing::asked(store.file(), "SELECT count(*) FROM sales_line"));
}

enum class Then { save, end, replaceAgain };

class WriteAhead : public ::testing::TestWithParam<Then> {};

TEST_P(WriteAhead, StopsAfterAnyStepWithTheOldOrTheNewAndNeverAMixture) {
    const Then then = GetParam();
    const std::int64_t expected = then == Then::save ? 2 : then == Then::end ? 1 : 3;
    bool hasMore = true;
    for (int steps = 0; hasMore; ++steps) {
        SCOPED_TRACE(steps);
        StoreFixture store;
        ModelContext* context = store.open();
        context->replaceSalesRows("DAILY", day, longReport(1));
        ASSERT_EQ(context->save(), std::nullopt);
        context->replaceSalesRows("DAILY", day, longReport(2));
        for (int step = 0; step < steps; ++step) {
            hasMore = context->writeAhead();
            ASSERT_EQ(context->fetchSalesRows().back().line.units, 2) << "a reader sees what is pending";
        }
        EXPECT_TRUE(hasMore || steps > 3) << "as many are deleted as inserted";
        if (then == Then::replaceAgain) {
            context->replaceSalesRows("DAILY", day, longReport(3));
        }
        if (then != Then::end) {
            ASSERT_EQ(context->save(), std::nullopt);
            EXPECT_FALSE(context->writeAhead());
        }
        const auto rows = store.open()->fetchSalesRows();
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(few));
        EXPECT_EQ(rows.front().line.units, expected);
        EXPECT_EQ(rows.back().line.units, expected);
        store.close();
        EXPECT_EQ(linesInFile(store), few);
    }
}

INSTANTIATE_TEST_SUITE_P(Then, WriteAhead, ::testing::Values(Then::save, Then::end, Then::replaceAgain));

TEST(WriteAhead, LeavesAFullDiskToTheSaveAndLosesNothing) {
    constexpr std::int64_t more = 80'000;  // than fit into the memory that SQLite uses
    FaultyVfs vfs("faulty-ahead");
    StoreFixture store;
    ModelContext* context = store.open(vfs.name());
    context->replaceSalesRows("DAILY", day, longReport(1, 1));
    ASSERT_EQ(context->save(), std::nullopt);
    context->replaceSalesRows("DAILY", day, longReport(2, more));
    vfs.failWritesFrom(1, SQLITE_FULL);
    int steps = 1;
    while (context->writeAhead()) {
        ++steps;
    }
    EXPECT_LT(steps, more / 2'500) << "a write failed on the way";
    EXPECT_NE(context->save(), std::nullopt);
    vfs.failWritesFrom(0, 0);
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_EQ(store.open()->fetchSalesRows().size(), static_cast<std::size_t>(more));
}

}  // namespace
}  // namespace vantrell
