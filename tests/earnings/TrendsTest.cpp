#include "testing/EarningsFixture.h"

#include <cmath>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;
using enum TrendGranularity;

/// Starts of the buckets with the number of their days.
std::string described(const TrendBuckets& buckets) {
    std::string text;
    for (const CivilDate& start : buckets.starts) {
        text += dayKey(start) + " " + std::to_string(buckets.statuses.at(start).size()) + "; ";
    }
    return text;
}

TEST(TrendBuckets, BeginWithTheirDayWeekOrMonth) {
    const struct {
        const char* name;
        TrendGranularity granularity;
        const char* from;
        const char* to;
        const char* buckets;
    } cases[] = {
        {"days", day, "2026-10-31", "2026-11-01", "2026-10-31 1; 2026-11-01 1; "},
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
        EXPECT_EQ(described(buckets), row.buckets) << row.name;
        EXPECT_EQ(buckets.startByDay.size(), days(row.from, row.to).size()) << row.name;
    }
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

TEST(BucketStats, SayHowManyDaysWereFetchedNewestFirst) {
    EarningsFixture fixture;
    for (const char* date : {"2026-11-08", "2026-11-09", "2026-11-10", "2026-11-11"}) {
        fixture.daily(date, {Line{}, {.productType = "7", .units = 2}});
    }
    fixture.report(ReportFrequency::daily, "2026-11-12", {}, ReportStatus::empty);
    fixture.report(ReportFrequency::daily, "2026-11-13", {}, ReportStatus::pending);
    fixture.daily("2026-11-15", {{.units = 5}});
    fixture.report(ReportFrequency::weekly, "2026-11-14", {{.units = 100}});
    const EarningsStore& store = fixture.reload();
    const auto shown = [&store](const char* from, const char* to, TrendGranularity granularity) {
        std::string text;
        for (const PeriodStat& stat : store.bucketStats(from, to, granularity, {})) {
            text += stat.label + " (" + stat.note + ") " + testing::money(stat.stats) + "; ";
        }
        return text;
    };
    EXPECT_EQ(shown("2026-11-08", "2026-11-15", week),
              store.bucketLabel(*dateFromDayKey("2026-11-15"), week) + " (1 days) USD 5; " +
                  store.bucketLabel(*dateFromDayKey("2026-11-08"), week) + " (5 of 7 days fetched) USD 4; ");
    EXPECT_EQ(shown("2026-11-14", "2026-11-15", day),
              "Sun, Nov 15 (1 days) USD 5; Sat, Nov 14 (0 of 1 days fetched) ; ");
    EXPECT_EQ(shown("2026-11-08", "2026-11-12", month), "November 2026 (5 days) USD 4; ");
    EXPECT_EQ(store.bucketStats("2026-11-08", "2026-11-08", day, {}).front().stats.updateUnits, 2);
}

// Apps 1 to 10, each worth ten times its number in all time, and something on 20 November.
void sellTenApps(EarningsFixture& fixture) {
    std::vector<Line> lines;
    for (std::int64_t app = 1; app <= 10; ++app) {
        lines.push_back({.appleID = app,
                         .units = app,
                         .title = "App " + std::to_string(app),
                         .sku = "sku" + std::to_string(app)});
    }
    fixture.daily("2026-11-20", lines);
    for (Line& line : lines) {
        line.units *= 9;
    }
    fixture.report(ReportFrequency::yearly, "2025", lines);
}

std::string described(const Trend& trend) {
    std::string text;
    for (const TrendLegendItem& item : trend.legend) {
        text += item.title + (item.colorIndex ? " " + std::to_string(*item.colorIndex) : "") + ", ";
    }
    for (const TrendPoint& point : trend.points) {
        text += "| " + dayKey(point.periodStart) + " " + std::string(rawText(point.status)) + ": ";
        for (const TrendSlice& slice : point.slices) {
            text += std::to_string(std::lround(slice.proceeds)) + "/" +
                    std::to_string(std::lround(slice.refunds)) + " ";
        }
    }
    return text;
}

TEST(Trend, ShowsTheEightLargestAppsByThemselvesAndPutsTheRestIntoOther) {
    EarningsFixture fixture;
    sellTenApps(fixture);
    fixture.daily("2026-11-19", {{.appleID = 0, .units = 7}});
    EarningsStore& store = fixture.reload();
    EXPECT_EQ(store.rankedApps(), (std::vector<std::int64_t>{10, 9, 8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(described(store.trend("2026-11-18", "2026-11-20", day, {})),
              "App 10 0, App 9 1, App 8 2, App 7 3, App 6 4, App 5 5, App 4 6, App 3 7, Other, "
              "| 2026-11-18 missing: | 2026-11-19 ok: 7/0 "
              "| 2026-11-20 ok: 10/0 9/0 8/0 7/0 6/0 5/0 4/0 3/0 3/0 ");
    // An app keeps its colour whatever is asked for, and under a filter has a series of its own without one.
    EXPECT_EQ(described(store.trend("2026-11-20", "2026-11-20", day, std::set<std::int64_t>{1, 2, 9})),
              "App 9 1, App 1, App 2, | 2026-11-20 ok: 9/0 1/0 2/0 ");
    EXPECT_EQ(described(store.trend("2026-11-20", "2026-11-20", day, std::set<std::int64_t>{})),
              "| 2026-11-20 ok: ");
    EXPECT_EQ(store.trend("soon", "2026-11-20", day, {}), Trend());
}

TEST(Trend, KeepsRefundsApartAndLeavesOutWhatIsWorthNothing) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    fixture.daily("2026-11-16", {{.units = -2, .proceeds = "3", .title = "A"},
                                 {.appleID = 2, .proceeds = "0", .title = "Free", .sku = "free"},
                                 {.appleID = 3, .proceeds = "9", .currency = "CHF", .sku = "norate"},
                                 {.appleID = 4, .productType = "X", .sku = "odd"}});
    fixture.daily("2026-11-17",
                  {{.units = 1, .proceeds = "2", .currency = "EUR", .title = "A"},
                   {.appleID = 11, .productType = "IA1", .proceeds = "5", .parentSKU = "app"},
                   {.appleID = 12, .productType = "IA1", .proceeds = "1", .parentSKU = "gone"}});
    EarningsStore& store = fixture.reload();
    EXPECT_EQ(described(store.trend("2026-11-15", "2026-11-21", week, {})),
              "A 0, Other, | 2026-11-15 ok: 9/-6 1/0 ");
    EXPECT_EQ(described(store.trend("2026-11-16", "2026-11-16", day, {})), "A 0, | 2026-11-16 ok: 0/-6 ");
    EXPECT_EQ(store.rankedApps(), (std::vector<std::int64_t>{1, 2}));
}

}  // namespace
}  // namespace vantrell
