#include "TrialHouse.h"
#include "WindowDriver.h"
#include "screens/components/DayText.h"

#include <filesystem>
#include <fstream>
#include <tuple>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::TrialHouse;
using testing::WindowDriver;

TEST(Drive, LeadsANewcomerFromTheKeyToTheFiguresAndBack) {
    Complaints complaints;
    TrialHouse newcomer;
    newcomer.start(false);
    // Tall enough for every screen, since a pointer reaches only what is in the window.
    newcomer.window().resize(1150, 2400);
    WindowDriver driver(newcomer.window());
    SyncEngine& engine = newcomer.app().engine();
    const auto isIdle = [&] { return !engine.isSyncing(); };

    // The key is entered, and the first backfill begins to fill the screens until it is stopped.
    driver.expectToSee(QAccessible::Button, QStringLiteral("Save"));
    const auto keyFile = newcomer.folder() / "AuthKey_7QK2MZ8T5W.p8";
    std::ofstream(keyFile) << newcomer.key();
    newcomer.root().welcome()->credentials()->importKey(
        QUrl::fromLocalFile(QString::fromStdString(keyFile.string())));
    driver.click(QAccessible::EditableText, QStringLiteral("Issuer ID"));
    driver.type(QStringLiteral("3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15"));
    driver.click(QAccessible::EditableText, QStringLiteral("Vendor Number"));
    driver.type(QStringLiteral(" 60419372 "));
    driver.click(QAccessible::Button, QStringLiteral("Save"));
    driver.expectToSee(QAccessible::Heading, QStringLiteral("Dashboard"));
    driver.expectToSee(QAccessible::ProgressBar, QStringLiteral("Sync progress"));
    driver.waitUntil([&] { return engine.hasOkDailyReport(); }, "for the first day");
    driver.click(QAccessible::Button, QStringLiteral("Stop"));
    driver.waitUntil(isIdle, "for the run to stop");

    // The next run is started by key, and its figures come by themselves.
    const auto days = [&] { return newcomer.app().store().dailyStatuses().size(); };
    driver.key(Qt::Key_F5);
    EXPECT_TRUE(engine.isSyncing());
    driver.waitUntil([&, before = days()] { return days() > before; }, "for another day");
    driver.expectToSee(QAccessible::Button, QStringLiteral("Most recent day with data, "));
    newcomer.root().dashboard()->banner()->stop();
    driver.waitUntil(isIdle, "for the run to stop");
    EXPECT_LT(days(), 300U) << "the backfill was not stopped";

    // All apps are left out, and one is taken in again.
    const AppInfo app = newcomer.app().store().catalog().apps().front();
    driver.click(QAccessible::Button, QStringLiteral("All Apps"));
    driver.click(QAccessible::CheckBox, QStringLiteral("All Apps"));
    driver.expectToSee(QAccessible::Button, QStringLiteral("All time, 0.00"));
    driver.click(QAccessible::CheckBox, QString::fromStdString(app.title));
    driver.key(Qt::Key_Escape);
    EXPECT_EQ(newcomer.app().store().appFilter(), AppFilter({app.id}));
    driver.waitUntil([&] { return !driver.sees(QAccessible::Button, QStringLiteral("All time, 0.00")); },
                     "for the figures of one app");

    // A day is opened from the chart and closed, by keyboard and by pointer.
    const DaySheet& sheet = *newcomer.root().dashboard()->selectedDay();
    const auto isClosed = [&] { return sheet.day() == nullptr; };
    driver.tabTo(QAccessible::Chart, QStringLiteral("Last 30 days"));
    driver.key(Qt::Key_End);
    driver.key(Qt::Key_Left);
    driver.key(Qt::Key_Return);
    driver.expectToSee(QAccessible::Dialog,
                       dayTitle(newcomer.locale(), newcomer.app().store().calendar().dayKey(2)));
    driver.key(Qt::Key_Escape);
    driver.waitUntil(isClosed, "to close");
    driver.click(QAccessible::Chart, QStringLiteral("Last 30 days"));
    driver.waitUntil([&] { return sheet.day() != nullptr; }, "for the pressed day");
    driver.click(QAccessible::Button, QStringLiteral("Done"));
    driver.waitUntil(isClosed, "to close");

    // The figures leave as a file.
    driver.key(Qt::Key_Comma, Qt::ControlModifier);
    driver.expectToSee(QAccessible::Heading, QStringLiteral("Settings"));
    const auto file = newcomer.folder() / "days.csv";
    std::ignore = newcomer.root().settings()->exports()->prepare();
    newcomer.root().settings()->exports()->save(QUrl::fromLocalFile(QString::fromStdString(file.string())));
    driver.waitUntil([&] { return std::filesystem::exists(file); }, "for the export");

    // Without the key the welcome is all that is left.
    driver.click(QAccessible::Button, QStringLiteral("Remove Key"));
    driver.expectToSee(QAccessible::Button, QStringLiteral("Save"));
    EXPECT_FALSE(driver.sees(QAccessible::Heading, QStringLiteral("Settings")));
    EXPECT_EQ(complaints.take(), "");
}

}  // namespace
}  // namespace vantrell
