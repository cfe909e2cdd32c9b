#pragma once

#include "core/MyApp.h"
#include "trial/TrialSurroundings.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// Writes a light and a dark picture of each screen into `folder`, which is made if need be, and beside them
/// what a screen reader finds there. Absent on success, else what went wrong first. Needs a QGuiApplication
/// that draws off-screen.
[[nodiscard]] std::optional<std::string> writeScreens(MyApp& app, TrialSurroundings& surroundings,
                                                      const std::filesystem::path& folder);

}  // namespace vantrell
