#include "BlockText.h"
#include "TablesFixture.h"
#include "screens/AppsView.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Line;
using testing::text;

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
    EXPECT_EQ(text(*apps.rows()), R"(
Proceeds
App | 30 days | 365 days | YTD | All time
Pad | 2 app · 1 refunded | $5.00 | $5.00 | $5.00 | $1,005.00
Purchases | $6.00 | $6.00 | $6.00 | $1,006.00
Pens | -$1.00 | -$1.00 | -$1.00 | -$1.00
Free | 1 app | — | — | — | —
Old | 1 updates | — | — | — | —

By year
App | 2024 | 2026 (YTD)
Pad | $1,000 | $5
Free | — | —
Old | — | —
Converted at today's rates.

Paid by Apple
App | This fiscal year | All time
Free | $0.00 | $0.00
Pad | $5.00 | $45.00
From finance reports — what actually settled, attributed by Apple Identifier.
)");
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
    EXPECT_EQ(text(*apps.rows()), R"(
Proceeds
App | 30 days | 365 days | YTD | All time
Free | 1 app | — | — | — | —

By year
App | 2024 | 2026
Free | — | —
Converted at today's rates.

Paid by Apple
App | This fiscal year | All time
Free | $0.00 | $0.00
From finance reports — what actually settled, attributed by Apple Identifier.
)");
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
