#include "screens/charts/ChartMarks.h"
#include "testing/Cases.h"

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::sys_days;

std::vector<CivilDate> consecutiveDays(CivilDate first, std::size_t count) {
    std::vector<CivilDate> starts;
    starts.reserve(count);
    for (std::size_t number = 0; number < count; ++number) {
        starts.emplace_back(sys_days(first) + days(number));
    }
    return starts;
}

TEST(ChartScale, HasFewRoundStepsWithZeroAmongThem) {
    using Text = const std::string&;
    testing::expectCases<2>(VANTRELL_TEST_DATA "/scales.tsv", [](Text lowest, Text highest) {
        std::string marks;
        for (const double mark : niceScale(std::stod(lowest), std::stod(highest)).marks()) {
            marks += (marks.empty() ? "" : " ") + QString::number(mark, 'g', 9).toStdString();
        }
        return marks;
    });
}

TEST(TimeTicks, NameShortRangesByDateAndLongOnesByMonth) {
    const Locale locale({"C", "C", "C", "C", "C"});
    const auto texts = [](const TimeTicks& ticks) {
        QStringList parts;
        for (const TimeTick& tick : ticks) {
            parts += QString::number(tick.column) + QStringLiteral(" ") + tick.text;
        }
        return parts.join(QStringLiteral(", ")).toStdString();
    };
    const auto month = timeTicks(consecutiveDays(2026y / 10 / 23, 30), TrendGranularity::day, locale);
    ASSERT_EQ(month.size(), 5U);
    EXPECT_EQ(texts(month[2]), "1 Oct 24, 8 Oct 31, 15 Nov 7, 22 Nov 14, 29 Nov 21");
    const auto year = timeTicks(consecutiveDays(2025y / 11 / 22, 365), TrendGranularity::day, locale);
    EXPECT_EQ(texts(year[2]), "40 Jan 2026, 130 Apr, 221 Jul, 313 Oct");
    EXPECT_EQ(year.front().size(), 12U);
    EXPECT_TRUE(timeTicks({}, TrendGranularity::month, locale).empty());
    const auto century = timeTicks(consecutiveDays(1926y / 1 / 1, 36'500), TrendGranularity::day, locale);
    EXPECT_LE(century.front().size(), 40U);
}

/// A plot of 100 by 100 points, in which amounts go from -50 to 50.
ChartMarks marksOf(std::vector<ChartColumn> columns, double pixel = 1) {
    const std::size_t count = columns.size();
    return chartMarks({std::move(columns), ChartScale{50, 1, 1, -50}, {}, {}},
                      {QRectF(0, 0, 100, 100), count, pixel});
}

TEST(ChartMarks, StackBarsAwayFromZero) {
    const auto marks =
        marksOf({{2026y / 3 / 1,
                  true,
                  {{20, ChartInk::series, seriesColor(0)},
                   {-10, ChartInk::refunds, {}},
                   {10, ChartInk::series, seriesColor(1)},
                   {-5, ChartInk::refunds, {}}}},
                 {2026y / 3 / 2, true, {{0, ChartInk::proceeds, {}}, {-50, ChartInk::refunds, {}}}},
                 {2026y / 3 / 3, true, {{0.001, ChartInk::proceeds, {}}}},
                 {2026y / 3 / 4, false, {}}});
    EXPECT_EQ(marks.zero, 50);
    ASSERT_EQ(marks.bars.size(), 6U) << "zero has no bar";
    const double heights[][2] = {{30, 50}, {50, 60}, {20, 30}, {60, 65}, {50, 100}, {49, 50}};
    for (std::size_t number = 0; number < marks.bars.size(); ++number) {
        EXPECT_EQ(marks.bars[number].area.top(), heights[number][0]) << number;
        EXPECT_EQ(marks.bars[number].area.bottom(), heights[number][1]) << number;
    }
    EXPECT_EQ(marks.bars[2].color, seriesColor(1));
    EXPECT_THAT(marks.rules, ::testing::ElementsAre(87.5));
}

TEST(ChartMarks, BeginAndEndAtPixelsWithoutOverlap) {
    for (const std::size_t count : {1U, 30U, 73U}) {
        const std::vector<ChartColumn> columns(count,
                                               {2026y / 3 / 1, true, {{33.3, ChartInk::proceeds, {}}}});
        for (const double pixel : {1.0, 0.8, 0.5}) {
            double free = 0;
            for (const BarMark& bar : marksOf(columns, pixel).bars) {
                for (const double edge : {bar.area.left(), bar.area.right(), bar.area.top()}) {
                    EXPECT_NEAR(edge / pixel, std::round(edge / pixel), 1e-6) << count;
                }
                EXPECT_GE(bar.area.left(), free - 1e-6);
                EXPECT_GE(bar.area.width(), pixel - 1e-6);
                free = bar.area.right();
            }
        }
    }
}

TEST(ChartFrame, FindsTheColumnUnderAPointOfThePlot) {
    const ChartFrame frame{QRectF(40, 0, 300, 100), 30, 1};
    const struct {
        double x;
        std::optional<std::size_t> column;
    } cases[] = {{39.9, std::nullopt}, {40, 0}, {49.9, 0}, {50, 1}, {339.9, 29}, {340, std::nullopt}};
    for (const auto& row : cases) {
        EXPECT_EQ(frame.columnAt(row.x), row.column) << row.x;
    }
    EXPECT_EQ(frame.center(29), 335);
    EXPECT_EQ(ChartFrame().columnAt(0), std::nullopt);
}

}  // namespace
}  // namespace vantrell
