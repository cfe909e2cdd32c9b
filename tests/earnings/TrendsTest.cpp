#include "testing/EarningsFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;
using enum TrendGranularity;

TEST(TrendBuckets, BeginWithTheirDayWeekOrMonth) {
    const struct {
        const char* name;
        TrendGranularity granularity;
        const char* from;
        const char* to;
        const char* buckets;
    } cases[] = {
        {"30 days over the end of a month", month, "2026-10-23", "2026-11-21",
         "2026-10-01 9; 2026-11-01 21; "},
        {"weeks from Sunday", week, "2026-11-14", "2026-11-22", "2026-11-08 1; 2026-11-15 7; 2026-11-22 1; "},
        {"a week over the end of a year", week, "2026-12-31", "2027-01-01", "2026-12-27 2; "},
        {"a leap day", month, "2024-02-28", "2024-03-01", "2024-02-01 2; 2024-03-01 1; "},
        {"backwards", day, "2026-11-02", "2026-11-01", ""},
        {"no day", week, "soon", "2026-11-01", ""},
    };
    EarningsFixture fixture;
    const EarningsStore& store = fixture.reload();
    for (const auto& row : cases) {
        const TrendBuckets buckets = store.trendBuckets(row.from, row.to, row.granularity);
        std::string shown;
        for (const CivilDate& start : buckets.starts) {
            shown += dayKey(start) + " " + std::to_string(buckets.statuses.at(start).size()) + "; ";
        }
        EXPECT_EQ(shown, row.buckets) << row.name;
        const std::size_t length = days(row.from, row.to).size();
        EXPECT_EQ(buckets.startByDay.size(), length) << row.name;
        EXPECT_EQ(store.dayPoints(row.from, row.to, {}).size(), length) << row.name;
    }
    EXPECT_EQ(store.trend("soon", "2026-11-20", day, {}), Trend());
}

TEST(CombinedStatus, IsTheBestOfThemOrTheFirst) {
    using enum ReportStatus;
    const struct {
        std::vector<ReportStatus> statuses;
        ReportStatus combined;
    } cases[] = {
        {{}, missing},
        {{missing, empty, ok}, ok},
        {{missing, pending, empty}, empty},
        {{error, pending}, pending},
        {{error, missing}, error},
        {{missing, error}, missing},
        {{unavailable, error}, unavailable},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(combinedStatus(row.statuses), row.combined) << rawText(row.combined);
    }
}

TEST(CountryStats, AreSummedBeforeTheyAreConverted) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 3}, {"EUR", 1}});
    fixture.daily("2026-11-20", {Line{}, Line{}, Line{}});
    EarningsStore& store = fixture.reload();
    store.setDisplayCurrency("EUR");
    EXPECT_EQ(store.countryStats({}, 1).front().amount, Decimal(1)) << "three thirds";
}

}  // namespace
}  // namespace vantrell
