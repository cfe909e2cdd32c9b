#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/AppsView.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Line;

/// A paid app with a product, a free one, and one that was only updated.
class AppsViewTest : public ::testing::Test {
  protected:
    AppsViewTest() {
        fixture.report(ReportFrequency::yearly, "2024", {{.proceeds = "1000", .title = "Pad"}});
        fixture.daily("2026-11-20",
                      {{.proceeds = "3", .currency = "EUR", .title = "Pad"}, pens(), free(), old()});
        fixture.payments("2026-12", {{.share = "5"}, {.appleID = 2, .share = "0"}});
        fixture.payments("2025-12", {{.share = "20", .currency = "EUR"}});
        fixture.runs.http.respond = [](const HttpRequest&) {
            return HttpResponse{200, R"({"results":[{"trackId":1,"artworkUrl100":"https://a.test/1"}]})"};
        };
        fixture.reload();
        apps.setInSight(true);
    }
    static Line pens() {
        return {.appleID = 11, .productType = "IA1", .units = -1, .title = "Pens", .parentSKU = "app"};
    }
    static Line free() { return {.appleID = 2, .proceeds = "0", .title = "Free", .sku = "free"}; }
    static Line old() { return {.appleID = 3, .productType = "7", .title = "Old", .sku = "old"}; }

    testing::TablesFixture fixture;
    AppsView apps{fixture.parts()};
};

TEST_F(AppsViewTest, SetsTheAppsSideBySide) {
    testing::expectShown(*apps.rows(), "apps.txt");
    EXPECT_EQ(apps.yearCount(), 2);
}

TEST_F(AppsViewTest, BandsEverySecondAppWithItsProducts) {
    const char* expected[] = {"app (", "product", "product )", "banded app ( )", "app ( )"};
    for (std::size_t place = 0; place < std::size(expected); ++place) {
        const auto row = apps.rows()->at<WindowsRow>(place + 2);
        const RowKind::Value kind = apps.rows()->rows()[place + 2].kind;
        const std::string shown = std::string(row.isBanded ? "banded " : "") +
                                  (kind == RowKind::ProductWindows ? "product" : "app") +
                                  (row.startsEntry ? " (" : "") + (row.endsEntry ? " )" : "");
        EXPECT_EQ(shown, expected[place]);
    }
}

TEST_F(AppsViewTest, NarrowsWhatWasLoadedToTheFilterWithoutWorkingItOutAnew) {
    fixture.clock.advance(std::chrono::hours(24 * 60));
    fixture.store().setAppFilter(std::set<std::int64_t>{2});
    testing::expectShown(*apps.rows(), "apps-of-a-filter.txt");
    fixture.store().setAppFilter(std::nullopt);
    EXPECT_EQ(apps.rows()->at<WindowsRow>(2).last30.money.text, QStringLiteral("$5.00"));
    fixture.reload();
    EXPECT_TRUE(apps.rows()->at<WindowsRow>(2).last30.isEmpty);
}

TEST_F(AppsViewTest, ShowsIconsOnceTheyAreKnownAndAsksOnce) {
    EXPECT_FALSE(apps.rows()->at<WindowsRow>(2).icon.isEmpty());
    EXPECT_TRUE(apps.rows()->at<WindowsRow>(5).icon.isEmpty());
    const auto asked = fixture.runs.http.requests.size();
    fixture.reload();
    EXPECT_EQ(fixture.runs.http.requests.size(), asked);
}

TEST_F(AppsViewTest, SaysWhyItIsEmpty) {
    fixture.store().setAppFilter(std::set<std::int64_t>{});
    EXPECT_EQ(apps.emptyState().title, QStringLiteral("No apps selected"));
    EXPECT_EQ(apps.rows()->count(), 0);
    fixture.store().setAppFilter(std::nullopt);
    EXPECT_FALSE(apps.isEmpty());
    testing::TablesFixture empty;
    AppsView none(empty.parts());
    none.setInSight(true);
    EXPECT_FALSE(none.isEmpty()) << "nothing was read yet";
    empty.reload();
    EXPECT_EQ(none.emptyState().title, QStringLiteral("No apps yet"));
}

}  // namespace
}  // namespace vantrell
