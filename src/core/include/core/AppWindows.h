#pragma once

#include "core/MyApp.h"
#include "core/PlacementKeeper.h"
#include "core/Translations.h"
#include "icons/ImageLoader.h"
#include "screens/RootView.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vantrell {

/// What the windows need beside the program itself. All of it must outlive them.
struct AppWindowsParts {
    const ServiceOrigins& origins;
    Appearance& appearance;
    ImageLoaderSettings icons;
    /// Absent where there can be none.
    OtherStores* otherStores = nullptr;
    /// Where the main window's place is remembered; absent to forget it.
    std::optional<std::filesystem::path> placementFile;
};

/// The program's windows. Everything that is shown in them goes with this object.
class AppWindows : public QObject {
    Q_OBJECT

  public:
    /// Builds the main window without showing it. All of it must outlive the windows.
    AppWindows(MyApp& app, const MyAppParts& parts, const AppWindowsParts& windowParts);
    ~AppWindows() override;

    [[nodiscard]] RootView& root() { return root_; }
    [[nodiscard]] QQuickWindow& mainWindow() { return *mainWindow_; }

    /// Shows the main window, and sets the data moving as soon as it has been painted.
    void show();
    /// Brings the main window to the front.
    void raise();

  private:
    void activeChanged();
    void firstPainted();

    Translations translations_;  // the models ask for their texts from the start
    ImageLoader icons_;
    RootView root_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> mainWindow_;
    std::optional<PlacementKeeper> placement_;
    bool hasAppeared_ = false;
};

}  // namespace vantrell
