#include "ProgramFolders.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

#include <filesystem>
#include <map>

#include <QProcess>
#include <QTest>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using testing::TemporaryFolder;

TEST(ProgramFolders, AreThoseOfTheDesktopAndOtherwiseOfTheAccount) {
    const std::string bytes = "/caf\xE9";
    const struct {
        std::map<std::string, std::string> environment;
        std::optional<std::string> account;
        const char* data;
    } cases[] = {
        {{{"HOME", "/home/me"}}, "/account", "/home/me/.local/share/vantrell"},
        {{{"HOME", "/home/me"}, {"XDG_DATA_HOME", "/data"}}, "/account", "/data/vantrell"},
        {{{"HOME", "/home/me"}, {"XDG_DATA_HOME", "data"}}, "/account", "/home/me/.local/share/vantrell"},
        {{{"HOME", ""}}, "/account", "/account/.local/share/vantrell"},
        {{{"HOME", "here"}}, "/account", "/account/.local/share/vantrell"},
        {{{"HOME", bytes}}, {}, "/caf\xE9/.local/share/vantrell"},
        {{{"XDG_DATA_HOME", "/data"}}, {}, nullptr},
    };
    for (const auto& [environment, account, data] : cases) {
        const auto lookUp = [&](const char* name) {
            const auto found = environment.find(name);
            return found == environment.end() ? std::nullopt : std::optional(found->second);
        };
        const auto folders = ProgramFolders::of(lookUp, account);
        EXPECT_EQ(folders ? folders->data.string() : "none", data == nullptr ? "none" : data);
    }
    const ProgramFolders first{"/data", "/config", "/cache"};
    EXPECT_EQ(first.ofStore(2).config, "/config/stores/2");
    EXPECT_EQ(first.ofStore(1).config, "/config");
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
        return QTest::qWaitFor([&] { return std::filesystem::exists(folder_.path() / file); }, 10'000);
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
    EXPECT_TRUE(second.waitForFinished(20'000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    const auto limits = testing::fileText("/proc/" + std::to_string(first.processId()) + "/limits");
    EXPECT_THAT(limits, ::testing::ContainsRegex("Max core file size +1 +1 "));
    first.terminate();
    EXPECT_TRUE(first.waitForFinished(10'000));
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit) << "it closes as if it were told to quit";
    EXPECT_TRUE(home.comesToHave("vantrell/window.json"));
}

}  // namespace
}  // namespace vantrell
