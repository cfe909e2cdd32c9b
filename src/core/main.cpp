#include "ProgramFolders.h"
#include "base/SystemClock.h"
#include "base/ThreadWorker.h"
#include "core/AppWindows.h"
#include "core/DesktopAppearance.h"
#include "core/EndSignals.h"
#include "core/MyApp.h"
#include "core/ProcessGuards.h"
#include "core/PublicServices.h"
#include "files/InstanceGuard.h"
#include "files/JsonDefaults.h"
#include "net/QtHttpClient.h"
#include "screens/words/StoreNotice.h"
#include "secrets/KeychainSecretStore.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include <QGuiApplication>

namespace {

using namespace vantrell;

/// The exit code where something is lost when the program ends, or couldn't be read.
constexpr int notStored = 5;

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

int run(const ProgramFolders& folders, InstanceGuard& guard, const EndSignals& endSignals) {
    const ServiceOrigins origins = publicServices();
    SystemClock clock;
    ThreadWorker worker;
    const HostLocalTime localTime;
    const Locale locale(LocaleNames::fromEnvironment(environmentVariable));
    QtHttpClient http;
    KeychainSecretStore secrets;
    JsonDefaults defaults(folders.config / "defaults.json");
    DesktopAppearance appearance;
    const MyAppParts parts{http, clock, worker, localTime, locale, secrets, defaults};
    auto begun =
        MyApp::start(parts, folders.data / "vantrell.sqlite", {origins.reportService, origins.rateService});
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        std::cerr << failure->text << std::endl;
        return EXIT_FAILURE;
    }
    ImageLoaderSettings icons;
    icons.folder = folders.cache / "icons";
    MyApp& app = *std::get<std::unique_ptr<MyApp>>(begun);
    std::optional<AppWindows> windows(std::in_place, app, parts,
                                      AppWindowsParts{.origins = origins,
                                                      .appearance = appearance,
                                                      .icons = std::move(icons),
                                                      .placementFile = folders.config / "window.json"});
    QObject::connect(&guard, &InstanceGuard::wakened, &*windows, &AppWindows::raise);
    windows->show();
    int code = endSignals.exec();
    // What they keep moving ends with them, and would be waited for.
    windows.reset();
    app.close();
    const auto unsaved = defaults.saveAll();
    const auto problem = storeProblem(app.context().health());
    if (problem || unsaved) {
        std::cerr << (problem ? *problem : *unsaved) << std::endl;
        code = notStored;
    }
    app.leave(code);
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    setProcessGuards();
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("vantrell"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vantrell"));
    QGuiApplication::setDesktopFileName(QStringLiteral("vantrell"));
    const EndSignals endSignals;
    const auto folders = ProgramFolders::ofUser();
    if (!folders) {
        std::cerr << "There is no home folder to keep anything in: HOME is not set." << std::endl;
        return EXIT_FAILURE;
    }
    InstanceGuard guard(folders->data);
    if (!guard.isFirst() && guard.wakeFirst()) {
        return EXIT_SUCCESS;
    }
    return run(*folders, guard, endSignals);
}
