#include "testing/EarningsFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;

struct Case {
    const char* name;
    std::vector<Line> lines;
    AggregateStats stats;
};

Decimal decimal(const char* text) {
    return *Decimal::parse(text);
}

std::vector<Case> addedLines() {
    return {
        {"nothing", {}, {}},
        {"a sale of an app", {{.units = 3, .proceeds = "1.40"}}, {3, 0, 0, 0, 0, {{"USD", decimal("4.2")}}}},
        {"a sale of a product",
         {{.productType = "IAY", .units = 2}},
         {0, 2, 0, 0, 0, {{"USD", decimal("2")}}}},
        {"a refund", {{.units = -2, .proceeds = "3.50"}}, {0, 0, 0, 0, 2, {{"USD", decimal("-7")}}}},
        {"a free app", {{.units = 5, .proceeds = "0", .currency = ""}}, {5, 0, 0, 0, 0, {}}},
        {"an update", {{.productType = "7T", .units = 9}}, {0, 0, 9, 0, 0, {}}},
        {"an update below 0", {{.productType = "7", .units = -9}}, {}},
        {"a redownload", {{.productType = "3F", .units = 4}}, {0, 0, 0, 4, 0, {}}},
        {"another kind with money",
         {{.productType = "X", .units = 4, .proceeds = "0.25"}},
         {0, 0, 0, 0, 0, {{"USD", decimal("1")}}}},
        {"a sale and a refund that cancel",
         {{.units = 1, .proceeds = "2"}, {.units = -1, .proceeds = "2"}},
         {1, 0, 0, 0, 1, {{"USD", Decimal()}}}},
        {"no units at a price", {{.units = 0, .proceeds = "2"}}, {}},
        {"currencies side by side",
         {{.units = 1, .proceeds = "100", .currency = "JPY"},
          {.units = 1, .proceeds = "0.001", .currency = "KWD"}},
         {2, 0, 0, 0, 0, {{"JPY", decimal("100")}, {"KWD", decimal("0.001")}}}},
        {"prices too fine or too large for millionths",
         {{.units = 3, .proceeds = "0.0000001"},
          {.units = 2, .proceeds = "99999999999999999999.5"},
          {.units = 7'000'000'000, .proceeds = "1"}},
         {7'000'000'005, 0, 0, 0, 0, {{"USD", decimal("200000000006999999999.0000003")}}}},
    };
}

TEST(Aggregate, AddsUnitsByKindAndMoneyExactlyByCurrency) {
    for (const Case& row : addedLines()) {
        EarningsFixture fixture;
        fixture.daily("2026-11-20", row.lines);
        const AggregateStats stats = fixture.reload().dailyRows({}, {}, {}).aggregate();
        EXPECT_EQ(stats, row.stats) << row.name << ": " << testing::money(stats);
        EXPECT_EQ(stats.isEmpty(), row.stats == AggregateStats()) << row.name;
    }
}

TEST(Aggregate, NarrowsByTheOwningAppAndAnEmptyFilterToNothing) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20",
                  {{.appleID = 1, .proceeds = "1"},
                   {.appleID = 2, .proceeds = "10", .sku = "other"},
                   {.appleID = 11, .productType = "IA1", .proceeds = "100", .parentSKU = "app"},
                   {.appleID = 12, .productType = "IA1", .proceeds = "1000", .parentSKU = "gone"},
                   {.appleID = 0, .proceeds = "10000"}});
    EarningsStore& store = fixture.reload();
    const auto sum = [&store](AppFilter apps) {
        return testing::money(store.dailyRows({}, {}, apps).aggregate());
    };
    EXPECT_EQ(sum(std::nullopt), "USD 11111");
    EXPECT_EQ(sum(std::set<std::int64_t>{1}), "USD 101");
    EXPECT_EQ(sum(std::set<std::int64_t>{1, 2, 12}), "USD 111");
    EXPECT_EQ(sum(std::set<std::int64_t>{}), "");
}

// One frequency for any stretch of time: yearly reports, and daily ones of the years after the newest of
// them.
TEST(AllTime, CountsEachYearOnceAndLeavesOutGapsAndOtherFrequencies) {
    EarningsFixture fixture;
    fixture.report(ReportFrequency::yearly, "2022", {{.proceeds = "1"}});
    fixture.report(ReportFrequency::yearly, "2024", {{.proceeds = "2"}});
    fixture.report(ReportFrequency::yearly, "2025", {{.proceeds = "4"}}, ReportStatus::error);
    fixture.report(ReportFrequency::monthly, "2026-10", {{.proceeds = "8"}});
    fixture.report(ReportFrequency::weekly, "2026-11-15", {{.proceeds = "16"}});
    fixture.daily("2023-07-01", {{.proceeds = "32"}});
    fixture.daily("2024-12-31", {{.proceeds = "64"}});
    fixture.daily("2025-01-01", {{.proceeds = "128"}});
    fixture.daily("2026-11-21", {{.proceeds = "256"}});
    EarningsStore& store = fixture.reload();
    EXPECT_EQ(testing::money(store.allTimeRows({}).aggregate()), "USD 391");
    std::vector<std::string> years;
    for (const PeriodStat& year : store.yearStats({})) {
        years.push_back(year.label + " " + year.note + " " + testing::money(year.stats));
    }
    EXPECT_EQ(years, (std::vector<std::string>{"2026 From daily reports · YTD USD 256",
                                               "2025 From daily reports USD 128", "2024 Yearly report USD 2",
                                               "2022 Yearly report USD 1"}));
}

TEST(MonthStats, TakesTheCurrentMonthFromDaysAndThe12BeforeFromMonthlyReports) {
    EarningsFixture fixture;
    fixture.daily("2026-10-31", {{.proceeds = "1"}});
    fixture.daily("2026-11-01", {{.proceeds = "2"}});
    fixture.daily("2026-11-21", {{.proceeds = "4"}});
    fixture.daily("2026-11-22", {{.proceeds = "8"}});
    fixture.report(ReportFrequency::monthly, "2026-10", {{.proceeds = "16"}});
    fixture.report(ReportFrequency::monthly, "2025-11", {{.proceeds = "32"}});
    fixture.report(ReportFrequency::monthly, "2025-10", {{.proceeds = "64"}});
    const auto months = fixture.reload().monthStats({});
    ASSERT_EQ(months.size(), 13U);
    EXPECT_EQ(months[0].label + months[0].note, "2026-11From daily reports · MTD");
    EXPECT_EQ(testing::money(months[0].stats), "USD 6") << "today itself is left out";
    EXPECT_EQ(months[1].label + months[1].note, "2026-10Monthly report");
    EXPECT_EQ(testing::money(months[1].stats), "USD 16");
    EXPECT_EQ(testing::money(months[12].stats), "USD 32");
    EXPECT_TRUE(months[2].stats.isEmpty());
    EXPECT_EQ(EarningsFixture().reload().monthStats({}).size(), 13U);
}

}  // namespace
}  // namespace vantrell
