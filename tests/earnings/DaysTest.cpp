#include "testing/EarningsFixture.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;

TEST(DayPoints, SplitsEachDayIntoProceedsAndRefundsInTheDisplayCurrency) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}, {"JPY", 0}});
    fixture.daily("2026-11-18", {{.units = 2, .proceeds = "1.5"},
                                 {.units = 1, .proceeds = "2", .currency = "EUR"},
                                 {.productType = "IA1", .units = -1, .proceeds = "3"},
                                 {.proceeds = "100", .currency = "JPY"},
                                 {.proceeds = "100", .currency = "CHF"},
                                 {.productType = "X", .proceeds = "100"}});
    fixture.report(ReportFrequency::daily, "2026-11-20", {}, ReportStatus::pending);
    const auto points = fixture.reload().dayPoints("2026-11-18", "2026-11-20", {});
    ASSERT_EQ(points.size(), 3U);
    EXPECT_EQ(points[0], (DayPoint{*dateFromDayKey("2026-11-18"), 7, -3, ReportStatus::ok}));
    EXPECT_EQ(points[1], (DayPoint{*dateFromDayKey("2026-11-19"), 0, 0, ReportStatus::missing}));
    EXPECT_EQ(points[2], (DayPoint{*dateFromDayKey("2026-11-20"), 0, 0, ReportStatus::pending}));
    EXPECT_TRUE(fixture.store().dayPoints("2026-11-20", "2026-11-18", {}).empty());
    EXPECT_TRUE(fixture.store().dayPoints("soon", "2026-11-18", {}).empty());
}

TEST(DayTable, HasARowForEveryDayNewestFirst) {
    EarningsFixture fixture;
    fixture.daily("2026-02-27", {{.proceeds = "1"}});
    fixture.daily("2026-03-01", {{.proceeds = "2"}, {.productType = "7", .units = 5}});
    fixture.report(ReportFrequency::monthly, "2026-02", {{.proceeds = "50"}});
    const auto table = fixture.reload().dayTable("2026-02-27", "2026-03-01", {});
    std::vector<std::string> rows;
    for (const DayTableRow& row : table) {
        rows.push_back(row.key + " " + std::string(rawText(row.status)) + " " + testing::money(row.stats));
    }
    EXPECT_EQ(rows, (std::vector<std::string>{"2026-03-01 ok USD 2", "2026-02-28 missing ",
                                              "2026-02-27 ok USD 1"}));
    EXPECT_EQ(table.front().stats.updateUnits, 5);
}

TEST(LineItems, PutSilentLinesLastAndOthersByAmountInTheDisplayCurrency) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    fixture.daily("2026-11-18", {{.productType = "7", .proceeds = "50", .title = "update"},
                                 {.proceeds = "0", .title = "free"},
                                 {.proceeds = "3", .title = "three"},
                                 {.units = -1, .proceeds = "9", .title = "refund"},
                                 {.proceeds = "2", .currency = "EUR", .title = "four"},
                                 {.proceeds = "99", .currency = "CHF", .title = "no rate"}});
    EarningsStore& store = fixture.reload();
    std::string titles;
    const std::vector<SalesRowLite> rows = store.lineItems("2026-11-18", {});
    EXPECT_TRUE(std::ranges::is_sorted(rows, [&store](const SalesRowLite& left, const SalesRowLite& right) {
        return store.lineItemOrder(left, right);
    }));
    for (const SalesRowLite& row : rows) {
        titles += std::string(row.title) + ", ";
    }
    EXPECT_EQ(titles, "four, three, no rate, refund, update, free, ");
}

}  // namespace
}  // namespace vantrell
