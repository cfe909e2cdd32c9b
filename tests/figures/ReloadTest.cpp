#include "figures/SalesSelection.h"
#include "testing/EarningsFixture.h"
#include "testing/FaultyVfs.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;

TEST(Reload, ReadsUnknownTextsAsDailyAndMissing) {
    EarningsFixture fixture;
    fixture.context().replaceSalesRows("HOURLY", "2026-11-20", {testing::sale(1, "5")});
    fixture.context().salesReports().insert(
        {.frequencyRaw = "HOURLY", .reportDate = "2026-11-20", .statusRaw = "lost"});
    fixture.daily("2026-11-21", {{.proceeds = "1"}});
    EarningsStore& store = fixture.reload();
    EXPECT_EQ(store.snapshot()->dailyStatuses.at("2026-11-20"), ReportStatus::missing);
    EXPECT_EQ(dailyRows(store.snapshot(), "2026-11-20", "2026-11-20", {}).rows().size(), 1U);
    EXPECT_EQ(dailyRows(store.snapshot(), {}, "2026-11-20", {}).rows().size(), 1U);
}

TEST(Reload, PublishesOnlyWhatDiffers) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {Line{}});
    EarningsStore& store = fixture.reload();
    const QSignalSpy catalog(&store, &EarningsStore::catalogChanged);
    const QSignalSpy revisions(&store, &EarningsStore::loadRevisionChanged);
    const RowID before = dailyRows(store.snapshot(), {}, {}, {}).rows().front().id;
    fixture.reload();
    EXPECT_NE(dailyRows(store.snapshot(), {}, {}, {}).rows().front().id, before);
    EXPECT_EQ(catalog.count(), 0);
    EXPECT_EQ(revisions.count(), 1);
    const QSignalSpy filters(&store, &EarningsStore::appFilterChanged);
    store.setAppFilter(std::set<std::int64_t>{1});
    store.setAppFilter(std::set<std::int64_t>{1});
    EXPECT_EQ(filters.count(), 1);
    EXPECT_EQ(revisions.count(), 1);
}

TEST(Reload, LeavesAloneWhatWasBegunWithTheFiguresBefore) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.proceeds = "5", .title = "Before"}});
    const auto before = allTimeRows(fixture.reload().snapshot(), {});
    fixture.daily("2026-11-20", {{.proceeds = "7", .title = "After"}});
    EXPECT_EQ(testing::money(allTimeRows(fixture.reload().snapshot(), {}).aggregate()), "USD 7");
    EXPECT_EQ(testing::money(before.aggregate()), "USD 5");
    EXPECT_EQ(before.rows().front().title, "Before");
    EXPECT_EQ(before.rows().front().reportDate, "2026-11-20");
}

TEST(Reload, KnowsOffersWhoseNumbersWereTakenBack) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.proceeds = "5"}});
    std::ignore = fixture.context().save();
    const DictionarySizes sizes = fixture.context().dictionarySizes();
    std::vector<SalesLine> lines;
    const std::vector<SalesRowView> dropped{testing::sale(1, "6")};
    fixture.context().encode(dropped, lines);
    fixture.reload();
    fixture.context().forgetUnsaved(sizes);
    fixture.daily("2026-11-21", {{.proceeds = "7", .currency = "EUR"}});
    EXPECT_EQ(testing::money(allTimeRows(fixture.reload().snapshot(), {}).aggregate()), "EUR 7, USD 5");
}

TEST(Reload, OfAStoreThatCanNotBeReadShowsTheRestAndSaysSo) {
    testing::FaultyVfs vfs("faulty-earnings");
    EarningsFixture fixture(vfs.name());
    // More than SQLite's page cache holds, so that a reload has to go to the disk.
    constexpr std::size_t linesADay = 4000;
    const std::vector<Line> lines(linesADay);
    for (int day = 1; day <= 28; ++day) {
        fixture.daily("2026-10-" + std::string(day < 10 ? "0" : "") + std::to_string(day), lines);
    }
    ASSERT_EQ(fixture.context().save(), std::nullopt);
    vfs.failReads(true);
    fixture.store().reload(fixture.context());
    EXPECT_EQ(fixture.store().snapshot()->salesRows.size(), 28 * linesADay) << "just saved, so not read back";
    EXPECT_FALSE(fixture.context().health().isDamaged());
    const auto next = fixture.another();
    next->reload(fixture.context());
    EXPECT_LT(next->snapshot()->salesRows.size(), 28 * linesADay);
    EXPECT_TRUE(next->isLoaded());
    EXPECT_TRUE(fixture.context().health().isDamaged());
    vfs.failReads(false);
    const auto nextStart = fixture.another();
    nextStart->reload(fixture.context());
    EXPECT_EQ(nextStart->snapshot()->salesRows.size(), 28 * linesADay);
}

TEST(DisplayCurrency, IsTheChosenOneElseThatOfTheLocale) {
    EarningsFixture fixture;
    EXPECT_EQ(fixture.store().displayCurrency(), "USD");
    fixture.store().setDisplayCurrency("USD");
    EXPECT_EQ(fixture.defaults.writes, 0);
    EXPECT_EQ(fixture.store().loadRevision(), 0);
    fixture.store().setDisplayCurrency("CHF");
    EXPECT_EQ(fixture.store().loadRevision(), 1);
    EXPECT_EQ(fixture.another()->displayCurrency(), "CHF");
    fixture.rates({{"EUR", 1}, {"AUD", 2}});
    EXPECT_EQ(fixture.reload().availableCurrencies(), (std::vector<std::string>{"AUD", "CHF", "EUR"}));
}

}  // namespace
}  // namespace vantrell
