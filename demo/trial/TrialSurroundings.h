#pragma once

#include "base/SystemClock.h"
#include "base/ThreadWorker.h"
#include "core/AppWindows.h"
#include "core/MyApp.h"
#include "files/JsonDefaults.h"
#include "net/QtHttpClient.h"
#include "sample/SampleService.h"
#include "secrets/MemorySecretStore.h"
#include "trial/TrialOptions.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace vantrell {

/// Everything around the program for one run: the real network, clock and settings, a secret store that
/// forgets, and the sample service unless another one is named.
class TrialSurroundings {
  public:
    /// `key` is the one of the options, handed over so that it isn't kept.
    TrialSurroundings(const TrialOptions& options, std::optional<std::string> key);

    /// Opens the store and chooses the display currency of the options.
    [[nodiscard]] std::variant<std::unique_ptr<MyApp>, StartFailure> start();

    [[nodiscard]] MyAppParts parts() {
        return {http_, clock_, worker_, localTime_, locale_, secrets_, defaults_};
    }
    [[nodiscard]] AppWindowsParts windowParts(Appearance& appearance) const;
    [[nodiscard]] JsonDefaults& settings() { return defaults_; }
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
    [[nodiscard]] const Locale& locale() const { return locale_; }
    [[nodiscard]] std::filesystem::path storeFile() const { return folder_ / "vantrell.sqlite"; }

  private:
    const TrialOptions& options_;
    std::filesystem::path folder_;
    SystemClock clock_;
    ThreadWorker worker_;
    HostLocalTime localTime_;
    Locale locale_;
    QtHttpClient http_;
    MemorySecretStore secrets_;
    JsonDefaults defaults_;
    std::unique_ptr<sample::SampleAccount> account_;
    std::unique_ptr<sample::SampleService> service_;
    ServiceOrigins origins_;
};

}  // namespace vantrell
