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

    /// NAME-light.png, NAME-dark.png and NAME.txt of what `window` shows now. For the text the window is made
    /// as tall as its content, so that everything in it is painted.
    void take(QQuickWindow& window, const std::string& name);

    /// Does what a press on the first item with this name does, as assistive technology would.
    void press(QQuickWindow& window, const QString& name);

    /// What couldn't be written or pressed first; absent if all was.
    [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

    /// Lets everything that is due be laid out, loaded and painted.
    static void settle();

  private:
    void takePicture(QQuickWindow& window, const std::string& fileName);
    void takeText(QQuickWindow& window, const std::string& fileName);
    void note(bool isDone, const std::string& problem);

    FixedAppearance& appearance_;
    const std::filesystem::path folder_;
    std::optional<std::string> problem_;
};

}  // namespace vantrell
