#include "../platform/Keyring.h"
#include "core/PublicServices.h"
#include "data/CredentialsKeychain.h"
#include "platform/KeychainSecretStore.h"
#include "testing/TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <QProcess>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::Keyring;
using testing::TemporaryFolder;

TEST(PublicServices, AreTheRealOnesAndEncrypted) {
    const ServiceOrigins services = publicServices();
    EXPECT_EQ(services.reportService, "https://api.appstoreconnect.apple.com");
    EXPECT_EQ(services.rateService, "https://open.er-api.com");
    EXPECT_EQ(services.lookupService, "https://itunes.apple.com");
    EXPECT_EQ(services.keyWebSite, "https://appstoreconnect.apple.com");
}

/// The product's own program off-screen, in the home of somebody who never used it.
class Home {
  public:
    void start(QProcess& program) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        for (const char* name :
             {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
            environment.insert(QString::fromLatin1(name), QString::fromStdString(folder_.path().string()));
        }
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(VANTRELL_PROGRAM), QStringList());
        ASSERT_TRUE(program.waitForStarted());
    }
    [[nodiscard]] bool comesToHave(const std::filesystem::path& file) const {
        for (int tries = 0; tries < 200; ++tries) {
            if (std::filesystem::exists(folder_.path() / file)) {
                return true;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return false;
    }

  private:
    TemporaryFolder folder_;
};

TEST(Product, StartsInAnEmptyHomeAndOnlyOnce) {
    const Home home;
    QProcess first;
    home.start(first);
    EXPECT_TRUE(home.comesToHave("vantrell/vantrell.sqlite"));
    QProcess second;
    home.start(second);
    EXPECT_TRUE(second.waitForFinished(10'000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    first.terminate();
    EXPECT_TRUE(first.waitForFinished(10'000));
}

}  // namespace
}  // namespace vantrell
