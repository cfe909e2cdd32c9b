#include "screens/charts/DailyProceedsChart.h"
#include "screens/charts/TrendChart.h"
#include "testing/EarningsFixture.h"

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using ::testing::ElementsAre;

const CivilDate friday = std::chrono::year(2026) / 11 / 20;
const CivilDate saturday = std::chrono::year(2026) / 11 / 21;
const CivilDate sunday = std::chrono::year(2026) / 11 / 22;

class ChartsTest : public ::testing::Test {
  protected:
    static std::string text(const Chart& chart) { return chart.annotation().spoken().toStdString(); }
    void openDaysOf(Chart& chart) {
        chart.setOnSelectDay([this](const std::string& key) { opened.push_back(key); });
    }

    testing::EarningsFixture fixture;
    Locale locale{{"en_US.UTF-8", "C", "C", "C", "C"}};
    FigureContext context{fixture.store(), locale};
    std::vector<std::string> opened;
};

TEST_F(ChartsTest, ADayIsTold) {
    DailyProceedsChart chart(context, QStringLiteral("Last 3 days"));
    chart.show({{friday, 1234.5, -2, ReportStatus::ok},
                {saturday, 0, 0, ReportStatus::empty},
                {sunday, 0, 0, ReportStatus::pending}});
    const char* expected[] = {"Fri, Nov 20, Fetched, 1,234.50 US dollars, Refunds, -2.00 US dollars",
                              "Sat, Nov 21, No sales, 0.00 US dollars", "Sun, Nov 22, Not published yet", ""};
    for (int column = 0; column < 4; ++column) {
        chart.select(column);
        EXPECT_EQ(text(chart), expected[column]);
    }
    EXPECT_EQ(chart.selection(), -1);
    EXPECT_EQ(chart.summary().toStdString(),
              locale.dayRange(friday, sunday) + ", Proceeds, 1,234.50 US dollars, Refunds, -2.00 US dollars");
    chart.fillTable();
    EXPECT_EQ(chart.table()->at<ChartTableRow>(2).proceeds, QStringLiteral("$1,234.50"));
    EXPECT_EQ(chart.table()->at<ChartTableRow>(2).refunds, QStringLiteral("-$2.00"));
    EXPECT_EQ(chart.table()->at<ChartTableRow>(0).proceeds, QString());
}

TEST_F(ChartsTest, DaysThatWereNotFetchedHaveNoBars) {
    DailyProceedsChart chart(context, {});
    std::vector<DayPoint> points;
    for (const ReportStatus status :
         {ReportStatus::ok, ReportStatus::empty, ReportStatus::pending, ReportStatus::unavailable,
          ReportStatus::error, ReportStatus::missing}) {
        points.push_back({friday, 5, -1, status});
    }
    chart.show(points);
    std::vector<std::size_t> bars;
    for (const ChartColumn& column : chart.content().columns) {
        EXPECT_EQ(column.isFetched, !column.bars.empty());
        bars.push_back(column.bars.size());
    }
    EXPECT_THAT(bars, ElementsAre(2, 2, 0, 0, 0, 0));
}

TEST_F(ChartsTest, TheSelectionMovesByKeysAndStaysOnItsDay) {
    DailyProceedsChart chart(context, {});
    chart.moveSelection(1);
    EXPECT_EQ(chart.selection(), -1) << "there is nothing";
    chart.show({{friday, 1, 0, ReportStatus::ok}, {saturday, 2, 0, ReportStatus::ok}});
    chart.moveSelection(-1);
    EXPECT_EQ(chart.selection(), 1) << "the newest first";
    chart.moveSelection(5);
    EXPECT_EQ(chart.selection(), 1);
    chart.show({{saturday, 3, 0, ReportStatus::ok}, {sunday, 4, 0, ReportStatus::ok}});
    EXPECT_EQ(chart.selection(), 0);
    EXPECT_EQ(text(chart), "Sat, Nov 21, Fetched, 3.00 US dollars");
    chart.show({{sunday, 4, 0, ReportStatus::ok}});
    EXPECT_EQ(chart.selection(), -1);
    EXPECT_EQ(chart.amounts()->count(), 0);
}

TEST_F(ChartsTest, OpenNothingWithoutAnAction) {
    DailyProceedsChart chart(context, {});
    chart.show({{friday, 1, 0, ReportStatus::ok}});
    chart.open(0);
    EXPECT_FALSE(chart.opensDays());
    openDaysOf(chart);
    chart.open(0);
    chart.open(1);
    chart.open(-1);
    EXPECT_THAT(opened, ElementsAre("2026-11-20"));
}

TEST_F(ChartsTest, ATrendTellsItsSlicesAndOpensDaysOnly) {
    TrendChart chart(context, {});
    openDaysOf(chart);
    const std::vector<TrendPoint> points{
        {friday,
         ReportStatus::ok,
         {{1, "Alpha", 0, 10, -1}, {2, "Beta", 1, 0, -2}, {std::nullopt, "Other", std::nullopt, 5, 0}}}};
    chart.show(points, TrendGranularity::day, true);
    chart.select(0);
    EXPECT_EQ(text(chart),
              "Fri, Nov 20, Fetched, Alpha, 10.00 US dollars, Other, 5.00 US dollars, "
              "Refunds, -3.00 US dollars");
    EXPECT_TRUE(chart.amounts()->at<ChartAmount>(1).hasDot);
    EXPECT_EQ(chart.amounts()->at<ChartAmount>(1).dot, seriesColor(std::nullopt));
    EXPECT_EQ(chart.content().columns[0].bars.size(), 4U) << "refunds are one bar";
    EXPECT_EQ(chart.content().columns[0].bars[3].value, -3);
    EXPECT_EQ(chart.content().columns[0].bars[0].ink, ChartInk::series);

    chart.show(points, TrendGranularity::month, false);
    EXPECT_EQ(chart.annotation().title, QStringLiteral("November 2026"));
    EXPECT_FALSE(chart.amounts()->at<ChartAmount>(1).hasDot);
    EXPECT_EQ(chart.content().columns[0].bars[0].ink, ChartInk::proceeds);
    chart.open(0);
    EXPECT_TRUE(opened.empty());
}

TEST_F(ChartsTest, AnAnnotationOfManyAppsStaysSmall) {
    TrendChart chart(context, {});
    TrendPoint point{friday, ReportStatus::ok, {}};
    for (int app = 0; app < 300; ++app) {
        point.slices.push_back({app, std::string(5000, 'x'), std::nullopt, 1, 0});
    }
    chart.show({point}, TrendGranularity::day, true);
    chart.select(0);
    EXPECT_EQ(chart.amounts()->count(), 13);
    EXPECT_LT(chart.annotation().spoken().size(), 2000);
}

}  // namespace
}  // namespace vantrell
