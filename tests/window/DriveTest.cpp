#include "WindowDriver.h"
#include "core/AppWindows.h"
#include "platform/Appearance.h"
#include "platform/KeyPair.h"
#include "screens/components/DayText.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialSurroundings.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <tuple>

#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Complaints;
using testing::WindowDriver;

/// The program as a newcomer finds it: no key yet, and the sample service to fetch from.
class Newcomer {
  public:
    Newcomer() {
        options_.key = generateKeyPair().privatePEM;
        options_.data = folder_.path();
        options_.pause = std::chrono::milliseconds(4);
        surroundings_.emplace(options_);
        app_ = std::move(std::get<std::unique_ptr<MyApp>>(surroundings_->start()));
        app_->engine().removeCredentials();
        windows_ = std::make_unique<AppWindows>(*app_, surroundings_->parts(),
                                                surroundings_->windowParts(appearance_));
        // Tall enough for every screen, since a pointer reaches only what is in the window.
        windows_->mainWindow().resize(1150, 2400);
        windows_->show();
    }

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] RootView& root() { return windows_->root(); }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }

    /// What the sheet of the day this many days ago is called.
    [[nodiscard]] QString titleOfDay(int daysAgo) {
        return dayTitle(surroundings_->locale(), app_->store().calendar().dayKey(daysAgo));
    }

    /// The key file as the web site hands it out.
    [[nodiscard]] std::filesystem::path keyFile() const {
        const auto file = folder_.path() / "AuthKey_7QK2MZ8T5W.p8";
        std::ofstream(file) << *options_.key;
        return file;
    }
    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }

  private:
    testing::TemporaryFolder folder_;
    TrialOptions options_;
    FixedAppearance appearance_;
    std::optional<TrialSurroundings> surroundings_;
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

TEST(Drive, LeadsANewcomerFromTheKeyToTheFiguresAndBack) {
    Complaints complaints;
    Newcomer newcomer;
    WindowDriver driver(newcomer.window());
    SyncEngine& engine = newcomer.app().engine();
    const auto isIdle = [&] { return !engine.isSyncing(); };

    // The key is entered, and the first backfill begins to fill the screens until it is stopped.
    driver.expectToSee(QAccessible::Button, QStringLiteral("Save"));
    newcomer.root().welcome()->credentials()->importKey(
        QUrl::fromLocalFile(QString::fromStdString(newcomer.keyFile().string())));
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
    driver.key(Qt::Key_F5);
    driver.waitUntil(isIdle, "for the end of the run");
    EXPECT_LT(newcomer.app().store().dailyStatuses().size(), 300U) << "the backfill was not stopped";
    driver.expectToSee(QAccessible::Button, QStringLiteral("Most recent day with data, "));

    // All apps are left out, and one is taken in again.
    const AppInfo app = newcomer.app().store().catalog().apps().front();
    driver.click(QAccessible::Button, QStringLiteral("All Apps"));
    driver.click(QAccessible::CheckBox, QStringLiteral("All Apps"));
    driver.expectToSee(QAccessible::Button, QStringLiteral("All time, 0.00"));
    driver.click(QAccessible::CheckBox, QString::fromStdString(app.title));
    driver.key(Qt::Key_Escape);
    EXPECT_EQ(newcomer.app().store().appFilter(), AppFilter({app.id}));
    EXPECT_FALSE(driver.sees(QAccessible::Button, QStringLiteral("All time, 0.00")));

    // A day is opened from the chart and closed, by keyboard and by pointer.
    const DaySheet& sheet = *newcomer.root().dashboard()->selectedDay();
    const auto isClosed = [&] { return sheet.day() == nullptr; };
    driver.tabTo(QAccessible::Chart, QStringLiteral("Last 30 days"));
    driver.key(Qt::Key_End);
    driver.key(Qt::Key_Left);
    driver.key(Qt::Key_Return);
    driver.expectToSee(QAccessible::Dialog, newcomer.titleOfDay(2));
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
