#pragma once

#include "data/CredentialsKeychain.h"
#include "platform/Appearance.h"
#include "platform/KeyPair.h"
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
    TrialHouse() {
        options_.key = generateKeyPair().privatePEM;
        options_.data = folder_.path();
        options_.pause = std::chrono::milliseconds(4);
        surroundings_.emplace(options_, options_.key);
        credentials_ = CredentialsKeychain(surroundings_->parts().secrets).load().credentials.value();
    }

    /// With a key or, as a newcomer has it, without one.
    void start(bool hasKey) {
        CredentialsKeychain keychain(surroundings_->parts().secrets);
        hasKey ? keychain.store(credentials_) : keychain.remove();
        app_.reset();
        app_ = std::move(std::get<std::unique_ptr<MyApp>>(surroundings_->start()));
        windows_ = std::make_unique<AppWindows>(*app_, surroundings_->parts(),
                                                surroundings_->windowParts(appearance_));
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
    [[nodiscard]] const std::string& key() const { return credentials_.privateKeyPEM; }
    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }

  private:
    TemporaryFolder folder_;
    TrialOptions options_;
    FixedAppearance appearance_;
    std::optional<TrialSurroundings> surroundings_;
    APICredentials credentials_;
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

}  // namespace vantrell::testing
