#include "trial/ScreenPictures.h"

#include "core/AppWindows.h"
#include "platform/Appearance.h"
#include "trial/ScreenCamera.h"

namespace vantrell {
namespace {

void takeDashboard(AppWindows& windows, ScreenCamera& camera) {
    windows.root().select(Destination::dashboard);
    camera.take(windows.mainWindow(), "dashboard");
}

}  // namespace

std::optional<std::string> writeScreens(MyApp& app, TrialSurroundings& surroundings,
                                        const std::filesystem::path& folder) {
    FixedAppearance appearance;
    ScreenCamera camera(appearance, folder);
    AppWindows windows(app, surroundings.parts(), surroundings.windowParts(appearance));
    windows.mainWindow().show();
    takeDashboard(windows, camera);
    return camera.problem();
}

}  // namespace vantrell
