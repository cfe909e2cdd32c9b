#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/AppDetailView.h"
#include "screens/components/StatTile.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::text;

class AppDetailViewTest : public ::testing::Test {
  protected:
    AppDetailViewTest() {
        fixture.report(ReportFrequency::yearly, "2024", {{.proceeds = "100", .title = "Pad", .country = ""}});
        fixture.report(ReportFrequency::monthly, "2026-09", {{.proceeds = "7", .title = "Pad"}});
        fixture.daily("2026-11-21", {{.proceeds = "3", .currency = "EUR", .title = "Pad", .country = "DE"},
                                     {.appleID = 2, .proceeds = "50", .title = "Other", .sku = "other"}});
        fixture.daily("2026-11-01",
                      {{.appleID = 11, .productType = "IAY", .title = "Pens", .parentSKU = "app"}});
        fixture.reload().setAppFilter(std::set<std::int64_t>{2});
    }
    static std::string tiles(AppDetailView& detail) {
        std::string all;
        for (int place = 0; place < detail.tiles()->count(); ++place) {
            const auto tile = detail.tiles()->at<StatTile>(static_cast<std::size_t>(place));
            all += (tile.title + QStringLiteral(" ") + tile.money.text + QStringLiteral(" ") + tile.subtitle)
                       .toStdString() +
                   "\n";
        }
        return all;
    }

    testing::TablesFixture fixture;
};

TEST_F(AppDetailViewTest, TellsAllAboutItsAppWhateverTheFilter) {
    AppDetailView detail(fixture.parts(), 1);
    EXPECT_EQ(detail.title(), QStringLiteral("Pad"));
    EXPECT_EQ(tiles(detail),
              "Newest day $6.00 Yesterday\nLast 30 days $7.00 \nYear to date $7.00 \n"
              "All time $107.00 \n");
    const std::string shown = text(*detail.rows());
    for (const char* part : {R"(
Last 30 days

)",
                             R"(
By year
2026 | 1 app · 1 in-app | From daily reports · YTD | $7.00
2024 | 1 app | Yearly report | $100.00

By month
Nov 2026 | 1 app · 1 in-app | From daily reports · MTD | $7.00
)",
                             "\nSep 2026 | 1 app | Monthly report | $7.00\n", R"(
Products · all time
Pad | App | 2 app | $106.00
Pens | Pad · Subscription | 1 in-app | $1.00

Top countries · all time
— | $100.00
Germany | $6.00
United States | $1.00
)"}) {
        EXPECT_NE(shown.find(part), std::string::npos) << part << "in\n" << shown;
    }
}

TEST_F(AppDetailViewTest, KeepsItsShapeWithoutTheApp) {
    AppDetailView detail(fixture.parts(), 99);
    EXPECT_EQ(detail.title(), QString());
    EXPECT_EQ(tiles(detail),
              "Newest day $0.00 Yesterday\nLast 30 days $0.00 \nYear to date $0.00 \n"
              "All time $0.00 \n");
    const std::string shown = text(*detail.rows());
    for (const char* part : {"\nBy year\nNothing here yet.\n", "\nProducts · all time\nNo products yet.\n",
                             "\nTop countries · all time\nNo sales yet.\n"}) {
        EXPECT_NE(shown.find(part), std::string::npos) << part << "in\n" << shown;
    }
}

TEST_F(AppDetailViewTest, OpensADayOfItsChartForItsAppAlone) {
    AppDetailView detail(fixture.parts(), 1);
    detail.chart()->open(29);
    ASSERT_NE(detail.selectedDay()->day(), nullptr);
    EXPECT_EQ(detail.selectedDay()->day()->lines()->count(), 1);
}

}  // namespace
}  // namespace vantrell
