#pragma once

#include "data/CredentialsKeychain.h"
#include "keys/KeyPair.h"
#include "screens/Appearance.h"
#include "testing/TemporaryFolder.h"
#include "trial/TrialSurroundings.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace vantrell::testing {

/// The program's windows over a store that the sample service fills, started and ended as often as wanted.
class TrialHouse {
  public:
    /// `secrets` stand for those of the desktop; without them nothing outlasts this.
    explicit TrialHouse(SecretStore* secrets = nullptr) : secrets_(secrets) {
        options_.key = generateKeyPair().privatePEM;
        options_.data = folder_.path();
        options_.pause = std::chrono::milliseconds(4);
        surroundings_.emplace(options_, options_.key);
        credentials_ = CredentialsKeychain(surroundings_->parts().secrets).load().credentials.value();
    }

    /// With the key put where it belongs, or with what is there.
    void start(bool putsKey) {
        const auto ofTrial = surroundings_->parts();
        const MyAppParts parts{ofTrial.http,    ofTrial.clock,
                               ofTrial.worker,  ofTrial.localTime,
                               ofTrial.locale,  secrets_ == nullptr ? ofTrial.secrets : *secrets_,
                               ofTrial.defaults};
        if (putsKey) {
            CredentialsKeychain(parts.secrets).store(credentials_);
        }
        app_.reset();
        const auto windowParts = surroundings_->windowParts(appearance_);
        app_ = std::move(std::get<std::unique_ptr<MyApp>>(MyApp::start(
            parts, surroundings_->storeFile(),
            {windowParts.origins.reportService, windowParts.origins.rateService, options_.pause})));
        windows_ = std::make_unique<AppWindows>(*app_, parts, windowParts);
        windows_->show();
    }
    /// The program can be asked what it has stored until the next start.
    void end() {
        windows_.reset();
        app_->close();
    }

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] RootView& root() { return windows_->root(); }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }
    [[nodiscard]] FixedAppearance& appearance() { return appearance_; }
    [[nodiscard]] const Locale& locale() const { return surroundings_->locale(); }
    [[nodiscard]] const APICredentials& credentials() const { return credentials_; }
    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }

  private:
    SecretStore* secrets_;
    TemporaryFolder folder_;
    TrialOptions options_;
    FixedAppearance appearance_;
    std::optional<TrialSurroundings> surroundings_;
    APICredentials credentials_;
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

}  // namespace vantrell::testing
