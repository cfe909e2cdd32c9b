#pragma once

#include "core/AppWindows.h"
#include "screens/Appearance.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// Takes pictures of windows into a folder.
class ScreenCamera {
  public:
    /// `appearance` is that of the windows.
    ScreenCamera(FixedAppearance& appearance, std::filesystem::path folder);

    /// NAME-light.png, NAME-dark.png and NAME.txt of what `window` shows now.
    void take(QQuickWindow& window, const std::string& name);

    /// What couldn't be written first; absent if all was.
    [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

    /// What a screen reader finds in `window` while it is as tall as its content.
    [[nodiscard]] static std::string textOf(QQuickWindow& window);
    /// Lets everything that is due be laid out, loaded and painted.
    static void settle();

  private:
    void takePicture(QQuickWindow& window, const std::string& fileName);
    void note(bool isDone, const std::string& problem);

    FixedAppearance& appearance_;
    const std::filesystem::path folder_;
    std::optional<std::string> problem_;
};

}  // namespace vantrell
