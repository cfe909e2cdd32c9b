#include "ScreenFixture.h"
#include "figures/Exports.h"
#include "screens/settings/SettingsView.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

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
    EXPECT_EQ(testing::fileText(folder / "years.csv"), expected);
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
}

TEST_F(SettingsViewTest, ShowsTheNewest500LinesOfTheLog) {
    const Instant start = fixture.clock.now();
    for (int line = 0; line < 600; ++line) {
        fixture.context().syncLog().insert({.date = start + std::chrono::seconds(line / 2),
                                            .key = "key " + std::to_string(line),
                                            .outcome = line == 599 ? "error" : "skipped"});
    }
    settings->openLog();
    const RowList& rows = *settings->log()->rows();
    ASSERT_EQ(rows.count(), 500);
    EXPECT_EQ(rows.at<SyncLogRow>(0).tone, Tone::Bad);
    EXPECT_EQ(rows.at<SyncLogRow>(0).copyText(), QStringLiteral("Nov 22, 1:04:59\u202FPM\tkey 599\terror"));
    EXPECT_EQ(rows.at<SyncLogRow>(499).key, QStringLiteral("key 100"));
}

}  // namespace
}  // namespace vantrell
