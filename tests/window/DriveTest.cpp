#include "WindowDriver.h"
#include "core/AppWindows.h"
#include "platform/Appearance.h"
#include "platform/KeyPair.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialSurroundings.h"

#include <filesystem>
#include <fstream>
#include <memory>

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
        options_.pause = std::chrono::microseconds(0);
        surroundings_.emplace(options_);
        app_ = std::move(std::get<std::unique_ptr<MyApp>>(surroundings_->start()));
        app_->engine().removeCredentials();
        windows_ = std::make_unique<AppWindows>(*app_, surroundings_->parts(),
                                                surroundings_->windowParts(appearance_));
        windows_->show();
    }

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] RootView& root() { return windows_->root(); }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }

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

}  // namespace
}  // namespace vantrell
