#include "TrialHouse.h"
#include "WindowDriver.h"
#include "calendar/ReportSchedule.h"
#include "screens/words/DayText.h"
#include "secrets/KeychainSecretStore.h"
#include "testing/Golden.h"
#include "testing/Keyring.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <tuple>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using testing::Complaints;
using testing::TrialHouse;
using testing::WindowDriver;

/// The files below a folder in which `text` stands.
std::string filesWith(const std::string& text, const fs::path& folder) {
    std::string found;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && testing::fileText(entry.path()).find(text) != std::string::npos) {
            found += entry.path().string() + "\n";
        }
    }
    return found;
}

TEST(Drive, LeadsANewcomerFromTheKeyToTheFiguresAndBack) {
    const testing::Keyring keyring;
    KeychainSecretStore secrets;
    Complaints complaints;
    TrialHouse newcomer(&secrets);
    std::optional<WindowDriver> driver;
    const auto start = [&] {
        newcomer.start(false);
        // Tall enough for every screen, since a pointer reaches only what is in the window.
        newcomer.window().resize(1150, 2400);
        driver.emplace(newcomer.window());
    };
    const auto isIdle = [&] { return !newcomer.app().engine().isSyncing(); };

    // The key is entered, and the first backfill begins to fill the screens until it is stopped.
    start();
    driver->expectToSee(QAccessible::Button, QStringLiteral("Save"));
    const testing::TemporaryFolder downloads;
    const APICredentials& own = newcomer.credentials();
    const auto keyFile = downloads / ("AuthKey_" + own.keyID + ".p8");
    std::ofstream(keyFile) << own.privateKeyPEM;
    newcomer.root().welcome()->credentials()->importKey(
        QUrl::fromLocalFile(QString::fromStdString(keyFile.string())));
    driver->click(QAccessible::EditableText, QStringLiteral("Issuer ID"));
    driver->type(QString::fromStdString(own.issuerID));
    driver->click(QAccessible::EditableText, QStringLiteral("Vendor Number"));
    driver->type(QStringLiteral(" 60419372 "));
    driver->click(QAccessible::Button, QStringLiteral("Save"));
    driver->expectToSee(QAccessible::Heading, QStringLiteral("Dashboard"));
    driver->expectToSee(QAccessible::ProgressBar, QStringLiteral("Sync progress"));
    driver->waitUntil([&] { return newcomer.app().engine().hasAnsweredDailyReport(); }, "for the first day");
    driver->click(QAccessible::Button, QStringLiteral("Stop"));
    driver->waitUntil(isIdle, "for the run to stop");

    // The key is kept by the secret service alone, and found there by the next start.
    newcomer.end();
    const std::string partOfKey = own.privateKeyPEM.substr(own.privateKeyPEM.find('\n') + 1, 60);
    EXPECT_NE(filesWith(partOfKey, downloads.path()), "");
    EXPECT_EQ(filesWith(partOfKey, newcomer.folder()), "");
    start();
    driver->expectToSee(QAccessible::Heading, QStringLiteral("Dashboard"));
    EXPECT_EQ(newcomer.app().engine().account().credentials().keyID, own.keyID);
    SyncEngine& engine = newcomer.app().engine();

    // The next run is started by key, and its figures come by themselves.
    const auto days = [&] { return newcomer.app().store().snapshot()->dailyStatuses.size(); };
    driver->key(Qt::Key_F5);
    EXPECT_TRUE(engine.isSyncing());
    driver->waitUntil([&, before = days()] { return days() > before; }, "for another day");
    driver->expectToSee(QAccessible::Button, QStringLiteral("Most recent day with data, "));
    newcomer.root().dashboard()->banner()->stop();
    driver->waitUntil(isIdle, "for the run to stop");
    EXPECT_LT(days(), 300U) << "the backfill was not stopped";

    // All apps are left out, and one is taken in again.
    const AppInfo app = newcomer.app().store().snapshot()->catalog->apps().front();
    driver->click(QAccessible::Button, QStringLiteral("All Apps"));
    driver->click(QAccessible::CheckBox, QStringLiteral("All Apps"));
    driver->expectToSee(QAccessible::Button, QStringLiteral("All time, 0.00"));
    driver->click(QAccessible::CheckBox, QString::fromStdString(app.title));
    driver->key(Qt::Key_Escape);
    EXPECT_EQ(newcomer.app().store().appFilter(), AppFilter({app.id}));
    driver->waitUntil([&] { return !driver->sees(QAccessible::Button, QStringLiteral("All time, 0.00")); },
                      "for the figures of one app");

    // What lacks is told, and fetched from there.
    driver->click(QAccessible::Button, QStringLiteral("Sync Log"));
    driver->expectToSee(QAccessible::Heading, QStringLiteral("Sync Log"));
    driver->click(QAccessible::ListItem, QStringLiteral("History"));
    driver->expectToSee(QAccessible::Button, QStringLiteral("Fetch What Is Missing"));
    driver->click(QAccessible::Button, QStringLiteral("Fetch What Is Missing"));
    driver->waitUntil([&] { return newcomer.root().history()->isWhole() && isIdle(); },
                      "for what two stops have left");
    EXPECT_FALSE(driver->sees(QAccessible::Button, QStringLiteral("Fetch What Is Missing")));
    EXPECT_EQ(days(), static_cast<std::size_t>(daysOfBackfill));
    EXPECT_EQ(newcomer.app().store().snapshot()->monthlyOKLabels.size(),
              static_cast<std::size_t>(monthsOfBackfill));
    EXPECT_EQ(engine.lastError(), std::nullopt);
    driver->click(QAccessible::ListItem, QStringLiteral("Dashboard"));

    // A day is opened from the chart and closed, by keyboard and by pointer.
    const DaySheet& sheet = *newcomer.root().dashboard()->selectedDay();
    const auto isClosed = [&] { return sheet.day() == nullptr; };
    driver->tabTo(QAccessible::Chart, QStringLiteral("Last 30 days"));
    driver->key(Qt::Key_End);
    driver->key(Qt::Key_Left);
    driver->key(Qt::Key_Return);
    driver->expectToSee(QAccessible::Dialog,
                        dayTitle(newcomer.locale(), newcomer.app().store().calendar().dayKey(2)));
    driver->key(Qt::Key_Escape);
    driver->waitUntil(isClosed, "to close");
    driver->click(QAccessible::Chart, QStringLiteral("Last 30 days"));
    driver->waitUntil([&] { return sheet.day() != nullptr; }, "for the pressed day");
    driver->click(QAccessible::Button, QStringLiteral("Done"));
    driver->waitUntil(isClosed, "to close");

    // The figures leave as a file.
    driver->key(Qt::Key_Comma, Qt::ControlModifier);
    driver->expectToSee(QAccessible::Heading, QStringLiteral("Settings"));
    const auto file = newcomer.folder() / "days.csv";
    std::ignore = newcomer.root().settings()->exports()->prepare();
    newcomer.root().settings()->exports()->save(QUrl::fromLocalFile(QString::fromStdString(file.string())));
    driver->waitUntil([&] { return std::filesystem::exists(file); }, "for the export");

    // Without the key the welcome is all that is left.
    driver->click(QAccessible::Button, QStringLiteral("Remove Key"));
    driver->key(Qt::Key_Return);
    EXPECT_TRUE(engine.hasCredentials()) << "the question begins with the careful answer";
    driver->click(QAccessible::Button, QStringLiteral("Remove Key"));
    driver->key(Qt::Key_Tab);
    driver->key(Qt::Key_Return);
    driver->expectToSee(QAccessible::Button, QStringLiteral("Save"));
    EXPECT_FALSE(driver->sees(QAccessible::Heading, QStringLiteral("Settings")));
    EXPECT_EQ(complaints.take(), "");
}

}  // namespace
}  // namespace vantrell
