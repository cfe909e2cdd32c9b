#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/ByDayView.h"

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;

class ByDayViewTest : public ::testing::Test {
  protected:
    ByDayViewTest() {
        fixture.daily("2026-10-31", {{.proceeds = "7", .title = "Pad"}});
        fixture.daily("2026-11-20",
                      {{.proceeds = "5", .title = "Pad"},
                       {.appleID = 2, .units = -1, .proceeds = "2", .title = "Note", .sku = "note"}});
        fixture.report(ReportFrequency::daily, "2026-11-21", {}, ReportStatus::pending);
        fixture.reload();
        trends.setInSight(true);
    }

    [[nodiscard]] std::string rows() { return testing::text(*trends.rows()); }
    [[nodiscard]] std::size_t columns() { return trends.chart()->content().columns.size(); }
    [[nodiscard]] std::string legend() {
        std::string titles;
        for (int row = 0; row < trends.trendLegend()->rows()->count(); ++row) {
            titles += trends.trendLegend()
                          ->rows()
                          ->at<TrendLegendRow>(static_cast<std::size_t>(row))
                          .title.toStdString() +
                      " ";
        }
        return titles;
    }

    testing::TablesFixture fixture;
    ByDayView trends{fixture.parts()};
};

TEST_F(ByDayViewTest, BeginsWithTheDaysOfThirtyDaysBeforeToday) {
    EXPECT_EQ(columns(), 30U);
    EXPECT_THAT(rows(), HasSubstr("\nDays\nSat, Nov 21, 2026 | Not published yet | No paid units | $0.00\n"
                                  "Fri, Nov 20, 2026 | 1 app · 1 refunded | $3.00\n"));
    EXPECT_EQ(trends.rows()->count(), 2 + 30);
    EXPECT_EQ(legend(), "Pad Note ");
    trends.chart()->open(28);
    ASSERT_NE(trends.selectedDay()->day(), nullptr);
    EXPECT_EQ(trends.selectedDay()->day()->title(), QStringLiteral("Friday, Nov 20, 2026"));
    trends.openDay(QStringLiteral("2026-10-31"));
    EXPECT_EQ(trends.selectedDay()->day()->title(), QStringLiteral("Saturday, Oct 31, 2026"));
}

TEST_F(ByDayViewTest, WeeksAndMonthsOpenNothing) {
    trends.selectGranularity(2);
    EXPECT_THAT(rows(),
                HasSubstr("\nMonths\nNovember 2026 | 1 app · 1 refunded | 1 of 21 days fetched | $3.00\n"
                          "October 2026 | 1 app | 1 of 9 days fetched | $7.00\n"));
    trends.chart()->open(0);
    EXPECT_EQ(trends.selectedDay()->day(), nullptr);
    trends.selectGranularity(1);
    EXPECT_THAT(rows(), HasSubstr("\nWeeks\n"));
    EXPECT_EQ(trends.chart()->content().columns.front().start, 2026y / 10 / 18) << "a Sunday";
    trends.selectGranularity(3);
    EXPECT_EQ(trends.granularityPlace(), 1);
}

TEST_F(ByDayViewTest, ShowsTheWindowThatIsChosen) {
    for (const auto& [place, days] : {std::pair(1, 90U), {2, 365U}, {0, 30U}, {4, 30U}}) {
        trends.selectWindow(place);
        EXPECT_EQ(columns(), days);
        EXPECT_FALSE(trends.isCustom());
    }
}

TEST_F(ByDayViewTest, ShowsTheRangeBetweenTwoDatesInEitherOrder) {
    trends.selectWindow(3);
    EXPECT_TRUE(trends.isCustom());
    EXPECT_EQ(columns(), 31U) << "from 30 days ago to today";
    EXPECT_EQ(trends.from()->text(), QStringLiteral("Oct 23, 2026"));
    EXPECT_EQ(trends.through()->text(), QStringLiteral("Nov 22, 2026"));
    Q_EMIT trends.through()->picked(2026y / 11 / 20);
    Q_EMIT trends.from()->picked(2026y / 10 / 31);
    EXPECT_EQ(columns(), 21U);
    trends.setCustomEnd(2026y / 10 / 29);
    EXPECT_EQ(columns(), 3U);
    EXPECT_THAT(rows(), HasSubstr("\nDays\nSat, Oct 31, 2026 | 1 app | $7.00\n"));
    EXPECT_THAT(rows(), HasSubstr("Thu, Oct 29, 2026"));
}

TEST_F(ByDayViewTest, LimitsTheDatesByEachOtherAndToday) {
    trends.selectWindow(3);
    trends.from()->openGrid();
    trends.from()->grid()->moveByMonths(2);
    EXPECT_EQ(trends.from()->grid()->cursorText(), QStringLiteral("Sunday, Nov 22, 2026"));
    trends.through()->openGrid();
    trends.through()->grid()->moveByMonths(-2);
    EXPECT_EQ(trends.through()->grid()->cursorText(), QStringLiteral("Friday, Oct 23, 2026"));
}

TEST_F(ByDayViewTest, UsesColoursForSeveralAppsOnly) {
    EarningsStore& store = fixture.store();
    const struct {
        AppFilter apps;
        bool usesColors;
        const char* legend;
    } cases[] = {{{}, true, "Pad Note "},
                 {std::set<std::int64_t>{1}, false, "Pad "},
                 {std::set<std::int64_t>{1, 2}, true, "Pad Note "},
                 {std::set<std::int64_t>(), false, ""}};
    for (const auto& row : cases) {
        store.setAppFilter(row.apps);
        EXPECT_EQ(trends.usesSeriesColors(), row.usesColors);
        EXPECT_EQ(legend(), row.legend);
    }
}

TEST_F(ByDayViewTest, LooksUpTheIconsOfTheLegendOnce) {
    EXPECT_EQ(fixture.runs.http.requests.size(), 1U);
    EXPECT_THAT(fixture.runs.http.requests.front().url, HasSubstr("id=1%2C2"));
    fixture.reload();
    EXPECT_EQ(fixture.runs.http.requests.size(), 1U);
}

}  // namespace
}  // namespace vantrell
