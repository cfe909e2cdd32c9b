#include "../platform/Keyring.h"
#include "WindowDriver.h"
#include "platform/KeyPair.h"
#include "platform/KeychainSecretStore.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialSurroundings.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using testing::WindowDriver;

/// One start of the program in a home, with the desktop's secret service and a sample service that knows
/// `key`.
class Start {
  public:
    Start(const fs::path& home, const std::string& key)
        : options_{.key = key, .data = home, .pause = std::chrono::milliseconds(4)},
          surroundings_(options_, key) {
        const auto ofTrial = surroundings_.parts();
        const MyAppParts parts{ofTrial.http,   ofTrial.clock, ofTrial.worker,  ofTrial.localTime,
                               ofTrial.locale, secrets_,      ofTrial.defaults};
        const auto windowParts = surroundings_.windowParts(appearance_);
        app_ = std::move(std::get<std::unique_ptr<MyApp>>(MyApp::start(
            parts, surroundings_.storeFile(),
            {windowParts.origins.reportService, windowParts.origins.rateService, options_.pause})));
        windows_ = std::make_unique<AppWindows>(*app_, parts, windowParts);
        // Tall enough for every screen, since a pointer reaches only what is in the window.
        windows_->mainWindow().resize(1150, 2400);
        windows_->show();
    }
    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] RootView& root() { return windows_->root(); }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }

  private:
    TrialOptions options_;
    TrialSurroundings surroundings_;
    KeychainSecretStore secrets_;
    FixedAppearance appearance_;
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

/// The files below a folder in which `text` stands.
std::string filesWith(const std::string& text, const fs::path& folder) {
    std::string found;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(file), {}};
        if (content.find(text) != std::string::npos) {
            found += entry.path().string() + "\n";
        }
    }
    return found;
}

TEST(FirstKey, IsEnteredOnceAndFoundByTheNextStart) {
    const testing::Keyring keyring;
    const testing::TemporaryFolder home;
    const testing::TemporaryFolder downloads;
    const std::string key = generateKeyPair().privatePEM;
    const auto file = downloads.path() / "AuthKey_7QK2MZ8T5W.p8";
    std::ofstream(file) << key;
    const QString issuer = QStringLiteral("3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15");
    const QString welcome = QStringLiteral("Connect");
    {
        Start first(home.path(), key);
        WindowDriver driver(first.window());
        driver.expectToSee(QAccessible::Heading, welcome);
        first.root().welcome()->credentials()->importKey(
            QUrl::fromLocalFile(QString::fromStdString(file.string())));
        driver.click(QAccessible::EditableText, QStringLiteral("Issuer ID"));
        driver.type(issuer);
        driver.click(QAccessible::EditableText, QStringLiteral("Vendor Number"));
        driver.type(QStringLiteral("60419372"));
        driver.click(QAccessible::Button, QStringLiteral("Save"));
        driver.expectToSee(QAccessible::Heading, QStringLiteral("Dashboard"));
        driver.waitUntil([&] { return first.app().engine().hasOkDailyReport(); }, "for the first day");
    }
    const std::string partOfKey = key.substr(key.find('\n') + 1, 60);
    EXPECT_NE(filesWith(partOfKey, downloads.path()), "");
    EXPECT_EQ(filesWith(partOfKey, home.path()), "") << "the key must be kept by the secret service alone";

    Start second(home.path(), key);
    WindowDriver driver(second.window());
    driver.expectToSee(QAccessible::Heading, QStringLiteral("Dashboard"));
    EXPECT_FALSE(driver.sees(QAccessible::Heading, welcome));
    const auto found = second.app().engine().credentials();
    EXPECT_EQ(found.issuerID, issuer.toStdString());
    EXPECT_EQ(found.keyID, "7QK2MZ8T5W");
    EXPECT_EQ(found.vendorNumber, "60419372");
    EXPECT_EQ(found.privateKeyPEM + "\n", key);
}

}  // namespace
}  // namespace vantrell
