#include "trial/ScreenTour.h"

#include "figures/Apps.h"
#include "screens/components/StatTile.h"
#include "trial/CannedHttp.h"
#include "trial/ScreenCamera.h"
#include "trial/SideProgram.h"

#include <algorithm>
#include <exception>
#include <set>
#include <stdexcept>

#include <QAccessible>
#include <QGuiApplication>

namespace vantrell {
namespace {

constexpr int roundsForIcons = 6;

/// The newest day whose report holds lines.
std::string newestDayWithRows(const EarningsStore& store) {
    const auto& statuses = store.snapshot()->dailyStatuses;
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& day) { return day.second == ReportStatus::ok; });
    return newest == statuses.rend() ? store.calendar().dayKey(1) : newest->first;
}

QAccessibleInterface* pressableBelow(QAccessibleInterface& item, const QString& name) {
    if (item.state().invisible) {
        return nullptr;
    }
    const bool isNamed = item.text(QAccessible::Name).startsWith(name);
    if (isNamed && item.actionInterface() != nullptr &&
        item.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction())) {
        return &item;
    }
    for (int number = 0; number < item.childCount(); ++number) {
        QAccessibleInterface* child = item.child(number);
        QAccessibleInterface* found = child == nullptr ? nullptr : pressableBelow(*child, name);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

// As assistive technology would press the first item with this name.
void press(QQuickWindow& window, const QString& name) {
    ScreenCamera::settle();
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window);
    QAccessibleInterface* item = root == nullptr ? nullptr : pressableBelow(*root, name);
    if (item == nullptr) {
        throw std::runtime_error("there is nothing to press that is called " + name.toStdString());
    }
    item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

/// Shows one screen of a window after the other.
class Session {
  public:
    Session(AppWindows& windows, const Visit& visit, EarningsStore& store)
        : root_(windows.root()), window_(windows.mainWindow()), visit_(visit), store_(store) {}

    void takeDashboard() {
        take(Destination::dashboard, "dashboard");
        // The newest days may not be published yet.
        root_.dashboard()->chart()->selectNewest();
        root_.dashboard()->chart()->moveSelection(-5);
        visit_(window_, "chart-hover");
        root_.dashboard()->chart()->clearSelection();
        takeDay("day", newestDayWithRows(store_));
        const auto tiles = root_.dashboard()->tiles();
        const auto allTime = tiles->at<StatTile>(static_cast<std::size_t>(tiles->count() - 1)).money;
        // Without a sale there is nothing that the total is made of, and it may not be shown at all.
        if (!root_.dashboard()->isEmpty() && !allTime.byCurrency->empty()) {
            press(window_, allTime.spoken);
            visit_(window_, "breakdown");
            press(window_, allTime.spoken);
        }
    }

    void takeApps() {
        // Pictures of apps come over the network.
        root_.select(Destination::apps);
        for (int round = 0; round < roundsForIcons; ++round) {
            ScreenCamera::settle();
        }
        take(Destination::apps, "apps");
        store_.setAppFilter(std::set<std::int64_t>());
        visit_(window_, "apps-none-selected");
        store_.setAppFilter(std::nullopt);
        const auto apps = appTable(store_.snapshot(), store_.converter(), store_.calendar());
        root_.openApp(apps.empty() ? 0 : apps.front().app.id);
        visit_(window_, "app-detail");
        root_.goBack();
    }

    void takeTrends() {
        constexpr int months = 2;
        constexpr int custom = 3;
        take(Destination::byDay, "trends");
        root_.byDay()->selectGranularity(months);
        visit_(window_, "trends-months");
        root_.byDay()->selectGranularity(0);
        root_.byDay()->selectWindow(custom);
        visit_(window_, "trends-custom");
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
                visit_(*about, "about");
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
        visit_(window_, name);
    }
    void takeDay(const std::string& name, const std::string& dayKey) {
        root_.dashboard()->selectedDay()->open(dayKey, store_.appFilter());
        visit_(window_, name);
        root_.dashboard()->selectedDay()->dismiss();
    }
    void takeLog(const std::string& name) {
        root_.settings()->openLog();
        visit_(window_, name);
        root_.settings()->closeLog();
    }

    RootView& root_;
    QQuickWindow& window_;
    const Visit& visit_;
    EarningsStore& store_;
};

// States that the trial's run did not lead to.

void takeSyncing(const TourParts& tour, const Visit& visit) {
    SilentHttp http(tour.parts.clock);
    SideProgram side(tour, http, SideProgram::Key::stored, tour.storeFile);
    side.app().tasks().spawn(side.app().engine().runSync());
    visit(side.window(), "dashboard-syncing");
}

void takeError(const TourParts& tour, const Visit& visit) {
    BusyHttp http;
    SideProgram side(tour, http, SideProgram::Key::stored, tour.storeFile);
    side.app().tasks().spawn(side.app().engine().runSync());
    visit(side.window(), "dashboard-error");
}

void takeEmpty(const TourParts& tour, const Visit& visit) {
    BusyHttp http;
    SideProgram side(tour, http, SideProgram::Key::stored);
    Session(side.windows(), visit, side.app().store()).takeEmpty();
}

void takeWelcome(const TourParts& tour, const Visit& visit) {
    BusyHttp http;
    SideProgram side(tour, http, SideProgram::Key::none);
    visit(side.window(), "welcome");
}

}  // namespace

std::optional<std::string> showScreens(const TourParts& parts, const Visit& visit) {
    QAccessible::setActive(true);
    try {
        AppWindows windows(parts.app, parts.parts, parts.windowParts);
        windows.mainWindow().show();
        Session session(windows, visit, parts.app.store());
        session.takeDashboard();
        session.takeApps();
        session.takeTrends();
        session.takeOthers();
        session.takeAbout();
        takeSyncing(parts, visit);
        takeError(parts, visit);
        takeWelcome(parts, visit);
        takeEmpty(parts, visit);
    } catch (const std::exception& error) {
        return error.what();
    }
    return std::nullopt;
}

}  // namespace vantrell
