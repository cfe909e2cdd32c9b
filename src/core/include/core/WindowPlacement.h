#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// Where the main window was, in the screen's logical pixels. A place may lie on a screen that is gone since.
struct WindowPlacement {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    /// Place and size are those to go back to then.
    bool isMaximized = false;

    friend bool operator==(const WindowPlacement&, const WindowPlacement&) = default;
};

/// Absent if there is no such file or it has not all of the values; what is out of reason is moved to the
/// nearest value that a window can have.
[[nodiscard]] std::optional<WindowPlacement> loadPlacement(const std::filesystem::path& file);

/// Absent on success, else what went wrong, for the user.
[[nodiscard]] std::optional<std::string> savePlacement(const std::filesystem::path& file,
                                                       const WindowPlacement& placement);

}  // namespace vantrell
