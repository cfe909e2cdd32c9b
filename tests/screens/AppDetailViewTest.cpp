#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/AppDetailView.h"
#include "screens/components/StatTile.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

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
    testing::expectShown(*detail.rows(), "app.txt");
}

TEST_F(AppDetailViewTest, KeepsItsShapeWithoutTheApp) {
    AppDetailView detail(fixture.parts(), 99);
    EXPECT_EQ(detail.title(), QString());
    EXPECT_EQ(tiles(detail),
              "Newest day $0.00 Yesterday\nLast 30 days $0.00 \nYear to date $0.00 \n"
              "All time $0.00 \n");
    testing::expectShown(*detail.rows(), "app-that-is-unknown.txt");
}

TEST_F(AppDetailViewTest, OpensADayOfItsChartForItsAppAlone) {
    AppDetailView detail(fixture.parts(), 1);
    detail.chart()->open(29);
    ASSERT_NE(detail.selectedDay()->day(), nullptr);
    EXPECT_EQ(detail.selectedDay()->day()->lines()->count(), 1);
}

}  // namespace
}  // namespace vantrell
