#pragma once

#include "files/JsonDefaults.h"
#include "secrets/MemorySecretStore.h"
#include "trial/ScreenTour.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QTemporaryDir>

namespace vantrell {

/// A second program beside the trial's own, for pictures of states that its run didn't lead to. It has a
/// store of its own and asks the trial's service for nothing.
class SideProgram {
  public:
    enum class Key { stored, none };

    /// All is as in the trial but for store, secrets and settings; `http` answers in place of its service.
    /// The store is empty, or a copy of `storeFile`. Throws std::runtime_error if it can't be opened.
    SideProgram(const TourParts& tour, HttpClient& http, Key key,
                const std::optional<std::filesystem::path>& storeFile = std::nullopt);

    [[nodiscard]] MyApp& app() { return *app_; }
    [[nodiscard]] AppWindows& windows() { return *windows_; }
    [[nodiscard]] QQuickWindow& window() { return windows_->mainWindow(); }

  private:
    QTemporaryDir temporary_;
    std::filesystem::path folder_;
    MemorySecretStore secrets_;
    JsonDefaults defaults_;
    std::unique_ptr<MyApp> app_;
    std::unique_ptr<AppWindows> windows_;
};

}  // namespace vantrell
