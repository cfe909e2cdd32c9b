#include "ScreenFixture.h"
#include "earnings/Exports.h"
#include "screens/StoreNotice.h"
#include "screens/WelcomeView.h"
#include "screens/settings/SettingsView.h"
#include "testing/TemporaryFolder.h"

#include <fstream>
#include <sstream>
#include <tuple>

#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

class SettingsViewTest : public ::testing::Test {
  protected:
    SettingsViewTest() { settings->setInSight(true); }

    testing::ScreenFixture fixture;
    std::unique_ptr<SettingsView> settings = std::make_unique<SettingsView>(fixture.parts());
};

TEST_F(SettingsViewTest, ShowsTheCurrenciesAndHowOldTheirRatesAre) {
    DisplaySettings& display = *settings->display();
    EXPECT_EQ(display.ratesAge(), QStringLiteral("Not fetched yet"));
    display.refreshRates();
    fixture.reload();
    EXPECT_EQ(display.ratesAge(), QStringLiteral("Updated now"));
    EXPECT_EQ(display.currencies(), (QStringList{QStringLiteral("EUR"), QStringLiteral("USD")}));
    EXPECT_EQ(display.chosenCurrency(), 1);
    display.chooseCurrency(0);
    EXPECT_EQ(fixture.earnings.displayCurrency(), "EUR");
    EXPECT_EQ(display.chosenCurrency(), 0);
    display.chooseCurrency(2);
    EXPECT_EQ(fixture.earnings.displayCurrency(), "EUR");
    fixture.clock.advance(std::chrono::hours(2));
    EXPECT_EQ(display.ratesAge(), QStringLiteral("Updated 2 hours ago"));
}

TEST_F(SettingsViewTest, NamesTheHostsItTalksTo) {
    EXPECT_TRUE(settings->display()->caption().contains(QStringLiteral("rates from rates.test to every")));
    EXPECT_TRUE(settings->privacyText().contains(
        QStringLiteral("from reports.test, daily exchange rates from rates.test, and — if")));
    EXPECT_EQ(settings->cloudStatus(), QStringLiteral("Not active — data is stored on this device only"));
}

TEST_F(SettingsViewTest, FetchesTheChosenDayWhichIsTodayAtFirst) {
    SyncSettings& sync = *settings->sync();
    sync.fetchDay();
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"DAILY 2026-11-22"});
    sync.day()->openGrid();
    sync.day()->grid()->moveByDays(1);
    sync.day()->grid()->pickCursor();
    sync.fetchDay();
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"DAILY 2026-11-22"}) << "no later day";
    sync.day()->openGrid();
    sync.day()->grid()->moveByDays(-7);
    sync.day()->grid()->pickCursor();
    sync.fetchDay();
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"DAILY 2026-11-15"});
    settings->setInSight(false);
    settings->setInSight(true);
    sync.fetchDay();
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"DAILY 2026-11-22"});
}

TEST_F(SettingsViewTest, LeavesItToTheEngineToRefuseAMonth) {
    SyncSettings& sync = *settings->sync();
    EXPECT_FALSE(sync.canFetchMonth());
    sync.setMonth(QStringLiteral("2026-13"));
    EXPECT_TRUE(sync.canFetchMonth());
    sync.fetchMonth();
    EXPECT_EQ(fixture.engine().lastError(), "Use a month like 2026-08.");
    sync.setMonth(QStringLiteral("2026-08"));
    sync.fetchMonth();
    EXPECT_EQ(fixture.takeRequests().size(), 32U) << "the monthly report and its days";
}

TEST_F(SettingsViewTest, FetchesNothingWhileARunIsUnderWay) {
    settings->sync()->setMonth(QStringLiteral("2026-08"));
    ASSERT_TRUE(fixture.engine().beginRun());
    EXPECT_FALSE(settings->sync()->canFetchDay());
    EXPECT_FALSE(settings->sync()->canFetchMonth());
}

TEST_F(SettingsViewTest, WritesTheExportAsItWasWhenTheButtonWasPressed) {
    const testing::TemporaryFolder folder;
    ExportSettings& exports = *settings->exports();
    EXPECT_TRUE(exports.prepare().path().endsWith(QStringLiteral("/vantrell-daily.csv")));
    exports.chooseKind(2);
    EXPECT_EQ(exports.kinds().at(exports.chosenKind()), QStringLiteral("Years"));
    EXPECT_TRUE(exports.prepare().path().endsWith(QStringLiteral("/vantrell-years.csv")));
    const std::string expected = exportText(fixture.earnings, ExportKind::years);
    fixture.earnings.setDisplayCurrency("EUR");
    exports.save(QUrl(QStringLiteral("https://elsewhere.test/years.csv")));
    exports.save(QUrl::fromLocalFile(QString::fromStdString((folder / "years.csv").string())));
    settings.reset();
    std::ostringstream written;
    written << std::ifstream(folder / "years.csv").rdbuf();
    EXPECT_EQ(written.str(), expected);
}

TEST_F(SettingsViewTest, TellsWhyAFileIsntExported) {
    ExportSettings& exports = *settings->exports();
    std::ignore = exports.prepare();
    exports.save(QUrl::fromLocalFile(QStringLiteral("/dev/null/days.csv")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !exports.problem().isEmpty(); }));
    EXPECT_TRUE(exports.problem().startsWith(QStringLiteral("Not exported: /dev/null")))
        << exports.problem().toStdString();
    std::ignore = exports.prepare();
    EXPECT_EQ(exports.problem(), QString());
    fixture.context().health().addDamage("malformed");
    EXPECT_FALSE(exports.canExport());
    EXPECT_TRUE(exports.problem().startsWith(QStringLiteral("The store is damaged")));
}

TEST(StoreNotice, NamesWhatIsntStoredAndWhatCantBeRead) {
    const std::vector<ReportName> reports{
        {"DAILY", "2026-11-20"}, {"MONTHLY", "2026-10"}, {"ZZ", "2026-02"}, {"YEARLY", "2025"}};
    const std::string waits = " What was fetched is kept in memory and is stored as soon as it can be.";
    const std::string lacks =
        " The figures leave out what can't be read, and nothing is stored or exported. Close the program and "
        "bring the store's file back from a backup.";
    const struct {
        std::optional<StoreFailure> unsaved;
        std::size_t damaged;
        std::string notice;
    } cases[] = {
        {std::nullopt, 0, ""},
        {StoreFailure::diskFull, 0, "Not stored: the disk is full." + waits},
        {StoreFailure::other, 0, "Not stored: words." + waits},
        {StoreFailure::diskFull, 1,
         "This store is damaged: the daily report of 2026-11-20 can't be read." + lacks},
        {std::nullopt, 3,
         "This store is damaged: the daily report of 2026-11-20, the monthly report of 2026-10 and the "
         "finance "
         "report of 2026-02 for ZZ can't be read." +
             lacks},
        {std::nullopt, 4,
         "This store is damaged: the daily report of 2026-11-20, the monthly report of 2026-10 and 2 more "
         "can't "
         "be read." +
             lacks},
    };
    for (const auto& [unsaved, damaged, notice] : cases) {
        StoreHealth health;
        if (unsaved) {
            health.setUnsaved(StoreError{"words", *unsaved});
        }
        for (std::size_t number = 0; number < damaged; ++number) {
            health.addDamagedReport(reports[number]);
        }
        EXPECT_EQ(storeNotice(health).toStdString(), notice);
    }
}

TEST_F(SettingsViewTest, ShowsTheNewest500LinesOfTheLogAndFollowsIt) {
    const Instant start = fixture.clock.now();
    for (int line = 0; line < 600; ++line) {
        fixture.context().syncLog().insert({.date = start + std::chrono::seconds(line / 2),
                                            .key = "key " + std::to_string(line),
                                            .outcome = line == 599 ? "error" : "skipped"});
    }
    settings->openLog();
    const RowList& rows = *settings->log()->rows();
    ASSERT_EQ(rows.count(), 500);
    EXPECT_EQ(rows.at<SyncLogRow>(0).key, QStringLiteral("key 599"));
    EXPECT_EQ(rows.at<SyncLogRow>(0).tone, Tone::Bad);
    EXPECT_EQ(rows.at<SyncLogRow>(0).copyText(), QStringLiteral("Nov 22, 1:04:59\u202FPM\tkey 599\terror"));
    EXPECT_EQ(rows.at<SyncLogRow>(499).key, QStringLiteral("key 100"));
    fixture.clock.advance(std::chrono::hours(1));
    settings->display()->refreshRates();
    EXPECT_EQ(rows.at<SyncLogRow>(0).key, QStringLiteral("rates"));
    EXPECT_EQ(rows.at<SyncLogRow>(0).tone, Tone::Good);
    settings->closeLog();
    settings->display()->refreshRates();
    EXPECT_EQ(rows.at<SyncLogRow>(1).key, QStringLiteral("key 599")) << "out of sight nothing is worked out";
}

TEST_F(SettingsViewTest, WelcomesWithStepsInBoldAndCodeAndNoOtherMarkup) {
    WelcomeView welcome(fixture.parts());
    ASSERT_EQ(welcome.steps()->count(), 3);
    const auto step = welcome.steps()->at<WelcomeStep>(1);
    EXPECT_EQ(step.number, QStringLiteral("2"));
    EXPECT_TRUE(step.styledText.contains(QStringLiteral("<b>team key</b> with the <b>Finance</b> role")));
    EXPECT_TRUE(step.styledText.contains(QStringLiteral(">.p8</code> file")));
    EXPECT_TRUE(step.plainText.startsWith(QStringLiteral("Generate a team key with the Finance role")));
    EXPECT_EQ(welcome.linkAddress(), QStringLiteral("https://keys.test/access/integrations/api"));
    fixture.engine().removeCredentials();
    EXPECT_FALSE(welcome.credentials()->hasKey());
}

}  // namespace
}  // namespace vantrell
