#include "core/AppWindows.h"

#include "screens/AppIconProvider.h"
#include "screens/ProgramIcon.h"
#include "screens/QmlModule.h"

#include <chrono>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QStyleHints>
#include <QTimer>

namespace vantrell {
namespace {

ScreenParts screenParts(MyApp& app, const MyAppParts& parts, const AppWindowsParts& windowParts) {
    return {.store = app.store(),
            .engine = app.engine(),
            .context = app.context(),
            .clock = parts.clock,
            .localTime = parts.localTime,
            .locale = parts.locale,
            .tasks = app.tasks(),
            .http = parts.http,
            .defaults = parts.defaults,
            .appearance = windowParts.appearance,
            .origins = windowParts.origins,
            .otherStores = windowParts.otherStores,
            .cloudSyncActive = app.cloudSyncActive()};
}

// The files are compiled into the program, so that only a mistake of ours can make this fail.
std::unique_ptr<QQuickWindow> loaded(QQmlEngine& engine, RootView& root) {
    QQmlComponent component(&engine, mainQml());
    if (component.isError()) {
        qFatal("%s", qPrintable(component.errorString()));
    }
    std::unique_ptr<QObject> object(
        component.createWithInitialProperties({{QStringLiteral("root"), QVariant::fromValue(&root)}}));
    if (object == nullptr) {
        qFatal("%s", qPrintable(component.errorString()));
    }
    return std::unique_ptr<QQuickWindow>(qobject_cast<QQuickWindow*>(object.release()));
}

}  // namespace

AppWindows::AppWindows(MyApp& app, const MyAppParts& parts, const AppWindowsParts& windowParts)
    : translations_(parts.locale),
      icons_(parts.http, windowParts.icons),
      root_(screenParts(app, parts, windowParts)) {
    prepareQmlEngine(engine_);
    // The engine owns it from here on.
    engine_.addImageProvider(QString::fromLatin1(AppIconProvider::name), new AppIconProvider(icons_));
    QGuiApplication::setWindowIcon(ProgramIcon::asIcon());
    // Not every desktop tells Qt so, and without it no control answers to the pointer.
    QGuiApplication::styleHints()->setUseHoverEffects(true);
    mainWindow_ = loaded(engine_, root_);
    if (windowParts.placementFile) {
        placement_.emplace(*mainWindow_, *windowParts.placementFile);
    }
    connect(&engine_, &QQmlEngine::quit, qGuiApp, &QGuiApplication::quit, Qt::QueuedConnection);
    connect(mainWindow_.get(), &QWindow::activeChanged, this, &AppWindows::activeChanged);
}

AppWindows::~AppWindows() = default;

// Reading a large store takes a while: the window comes first. One that is never painted, since it started
// out hidden, must not wait for ever.
void AppWindows::show() {
    constexpr auto longestWait = std::chrono::seconds(2);
    connect(mainWindow_.get(), &QQuickWindow::frameSwapped, this, &AppWindows::firstPainted,
            Qt::QueuedConnection);
    mainWindow_->show();
    QTimer::singleShot(longestWait, this, &AppWindows::firstPainted);
}

void AppWindows::raise() {
    mainWindow_->show();
    mainWindow_->raise();
    mainWindow_->requestActivate();
}

void AppWindows::activeChanged() {
    if (mainWindow_->isActive() && hasAppeared_) {
        root_.becomeActive();
    }
}

void AppWindows::firstPainted() {
    if (!hasAppeared_) {
        hasAppeared_ = true;
        disconnect(mainWindow_.get(), &QQuickWindow::frameSwapped, this, nullptr);
        root_.appear();
    }
}

}  // namespace vantrell
