#include "trial/ScreenPictures.h"

#include "core/AppWindows.h"
#include "figures/Apps.h"
#include "screens/Appearance.h"
#include "screens/components/StatTile.h"
#include "trial/CannedHttp.h"
#include "trial/ScreenCamera.h"
#include "trial/SideProgram.h"

#include <algorithm>
#include <exception>
#include <set>

#include <QGuiApplication>

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

constexpr int roundsForIcons = 6;

/// The newest day whose report holds lines.
std::string newestDayWithRows(const EarningsStore& store) {
    const auto& statuses = store.snapshot()->dailyStatuses;
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& day) { return day.second == ReportStatus::ok; });
    return newest == statuses.rend() ? store.calendar().dayKey(1) : newest->first;
}

/// Takes the pictures of one window after the other.
class Session {
  public:
    Session(AppWindows& windows, ScreenCamera& camera, EarningsStore& store)
        : root_(windows.root()), window_(windows.mainWindow()), camera_(camera), store_(store) {}

    void takeDashboard() {
        take(Destination::dashboard, "dashboard");
        // The newest days may not be published yet.
        root_.dashboard()->chart()->selectNewest();
        root_.dashboard()->chart()->moveSelection(-5);
        camera_.take(window_, "chart-hover");
        root_.dashboard()->chart()->clearSelection();
        takeDay("day", newestDayWithRows(store_));
        const auto tiles = root_.dashboard()->tiles();
        const QString allTime =
            tiles->at<StatTile>(static_cast<std::size_t>(tiles->count() - 1)).money.spoken;
        camera_.press(window_, allTime);
        camera_.take(window_, "breakdown");
        camera_.press(window_, allTime);
    }

    void takeApps() {
        // Pictures of apps come over the network.
        root_.select(Destination::apps);
        for (int round = 0; round < roundsForIcons; ++round) {
            ScreenCamera::settle();
        }
        take(Destination::apps, "apps");
        store_.setAppFilter(std::set<std::int64_t>());
        camera_.take(window_, "apps-none-selected");
        store_.setAppFilter(std::nullopt);
        const auto apps = appTable(store_.snapshot(), store_.converter(), store_.calendar());
        root_.openApp(apps.empty() ? 0 : apps.front().app.id);
        camera_.take(window_, "app-detail");
        root_.goBack();
    }

    void takeTrends() {
        constexpr int months = 2;
        constexpr int custom = 3;
        take(Destination::byDay, "trends");
        root_.byDay()->selectGranularity(months);
        camera_.take(window_, "trends-months");
        root_.byDay()->selectGranularity(0);
        root_.byDay()->selectWindow(custom);
        camera_.take(window_, "trends-custom");
    }

    void takeOthers() {
        take(Destination::history, "history");
        root_.select(Destination::payouts);
        root_.payouts()->toggle(0);
        take(Destination::payouts, "payouts");
        take(Destination::settings, "settings");
        takeLog("sync-log");
    }

    void takeAbout() {
        root_.about()->open();
        ScreenCamera::settle();
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            if (auto* about = qobject_cast<QQuickWindow*>(window); about != nullptr && about != &window_) {
                camera_.take(*about, "about");
            }
        }
        root_.about()->close();
    }

    void takeEmpty() {
        take(Destination::dashboard, "dashboard-empty");
        takeDay("day-empty", store_.calendar().dayKey(1));
        take(Destination::apps, "apps-empty");
        take(Destination::payouts, "payouts-empty");
        root_.select(Destination::settings);
        takeLog("sync-log-empty");
    }

  private:
    void take(Destination::Value destination, const std::string& name) {
        root_.select(destination);
        camera_.take(window_, name);
    }
    void takeDay(const std::string& name, const std::string& dayKey) {
        root_.dashboard()->selectedDay()->open(dayKey, store_.appFilter());
        camera_.take(window_, name);
        root_.dashboard()->selectedDay()->dismiss();
    }
    void takeLog(const std::string& name) {
        root_.settings()->openLog();
        camera_.take(window_, name);
        root_.settings()->closeLog();
    }

    RootView& root_;
    QQuickWindow& window_;
    ScreenCamera& camera_;
    EarningsStore& store_;
};

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

void takeEmpty(const Studio& studio) {
    BusyHttp http;
    SideProgram side(studio.surroundings.parts(), http, studio.windowParts(), SideProgram::Key::stored);
    Session(side.windows(), studio.camera, side.app().store()).takeEmpty();
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
        Session session(windows, camera, app.store());
        session.takeDashboard();
        session.takeApps();
        session.takeTrends();
        session.takeOthers();
        session.takeAbout();
        takeSyncing(studio);
        takeError(studio);
        takeWelcome(studio);
        takeEmpty(studio);
    } catch (const std::exception& error) {
        return error.what();
    }
    return camera.problem();
}

}  // namespace vantrell
