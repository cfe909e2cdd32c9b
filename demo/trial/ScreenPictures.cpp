#include "trial/ScreenPictures.h"

#include "core/AppWindows.h"
#include "platform/Appearance.h"
#include "trial/CannedHttp.h"
#include "trial/ScreenCamera.h"
#include "trial/SideProgram.h"

#include <algorithm>
#include <exception>

namespace vantrell {
namespace {

/// The trial's surroundings as every picture needs them.
struct Studio {
    MyApp& app;
    TrialSurroundings& surroundings;
    FixedAppearance& appearance;
    ScreenCamera& camera;

    [[nodiscard]] AppWindowsParts windowParts() const {
        AppWindowsParts parts = surroundings.windowParts(appearance);
        parts.placementFile.reset();
        return parts;
    }
};

/// The newest day whose report holds lines.
std::string newestDayWithRows(const EarningsStore& store) {
    const auto& statuses = store.dailyStatuses();
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& day) { return day.second == ReportStatus::ok; });
    return newest == statuses.rend() ? store.calendar().dayKey(1) : newest->first;
}

void takeScreen(AppWindows& windows, ScreenCamera& camera, Destination::Value destination,
                const std::string& name) {
    windows.root().select(destination);
    camera.take(windows.mainWindow(), name);
}

void takeDashboard(AppWindows& windows, ScreenCamera& camera, EarningsStore& store) {
    RootView& root = windows.root();
    takeScreen(windows, camera, Destination::dashboard, "dashboard");
    root.dashboard()->selectedDay()->open(newestDayWithRows(store), store.appFilter());
    camera.take(windows.mainWindow(), "day");
    root.dashboard()->selectedDay()->dismiss();
}

// States that the trial's run did not lead to.

void takeSyncing(const Studio& studio) {
    SilentHttp http(studio.surroundings.parts().clock);
    SideProgram side(studio.surroundings.parts(), http, studio.windowParts(), SideProgram::Key::stored,
                     studio.surroundings.storeFile());
    side.app().tasks().spawn(side.app().engine().runSync());
    studio.camera.take(side.window(), "dashboard-syncing");
}

void takeError(const Studio& studio) {
    BusyHttp http;
    SideProgram side(studio.surroundings.parts(), http, studio.windowParts(), SideProgram::Key::stored,
                     studio.surroundings.storeFile());
    side.app().tasks().spawn(side.app().engine().runSync());
    studio.camera.take(side.window(), "dashboard-error");
}

void takeWelcome(const Studio& studio) {
    BusyHttp http;
    SideProgram side(studio.surroundings.parts(), http, studio.windowParts(), SideProgram::Key::none);
    studio.camera.take(side.window(), "welcome");
}

}  // namespace

std::optional<std::string> writeScreens(MyApp& app, TrialSurroundings& surroundings,
                                        const std::filesystem::path& folder) {
    FixedAppearance appearance;
    ScreenCamera camera(appearance, folder);
    const Studio studio{app, surroundings, appearance, camera};
    AppWindows windows(app, surroundings.parts(), studio.windowParts());
    windows.mainWindow().show();
    try {
        takeDashboard(windows, camera, app.store());
        takeSyncing(studio);
        takeError(studio);
        takeWelcome(studio);
    } catch (const std::exception& error) {
        return error.what();
    }
    return camera.problem();
}

}  // namespace vantrell
