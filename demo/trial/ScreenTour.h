#pragma once

#include "core/AppWindows.h"
#include "core/MyApp.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include <QQuickWindow>

namespace vantrell {

/// A program whose screens are shown.
struct TourParts {
    MyApp& app;
    MyAppParts parts;
    AppWindowsParts windowParts;
    std::filesystem::path storeFile;
};

/// Does something with a window that shows what is named.
using Visit = std::function<void(QQuickWindow& window, const std::string& name)>;

/// Shows every screen one after the other, also in states to which the program's run did not lead, and has
/// each visited. Absent on success, else what went wrong. Needs a QGuiApplication that draws off-screen.
[[nodiscard]] std::optional<std::string> showScreens(const TourParts& parts, const Visit& visit);

}  // namespace vantrell
