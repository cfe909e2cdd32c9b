#include "core/AppWindows.h"

#include "screens/QmlModule.h"

#include <QQmlComponent>

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
    : root_(screenParts(app, parts, windowParts)) {
    prepareQmlEngine(engine_);
    mainWindow_ = loaded(engine_, root_);
    connect(mainWindow_.get(), &QWindow::activeChanged, this, &AppWindows::activeChanged);
}

AppWindows::~AppWindows() = default;

void AppWindows::show() {
    mainWindow_->show();
    root_.appear();
}

void AppWindows::raise() {
    mainWindow_->show();
    mainWindow_->raise();
    mainWindow_->requestActivate();
}

void AppWindows::activeChanged() {
    if (mainWindow_->isActive()) {
        root_.becomeActive();
    }
}

}  // namespace vantrell
