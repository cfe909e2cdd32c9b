#include "FailureWindow.h"
#include "ProgramFolders.h"
#include "UserStores.h"
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

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include <QCommandLineParser>
#include <QGuiApplication>

namespace {

using namespace vantrell;

/// The exit code where something is lost when the program ends, or couldn't be read.
constexpr int notStored = 5;

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

/// Which of the user's stores this program is for.
struct OwnStore {
    ProgramFolders first;
    int number = ProgramFolders::firstStore;
};

/// What the command line says; ends the program where it asks for help or can't be read.
int storeNumber(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("What each app earned, and what was actually paid."));
    parser.addHelpOption();
    const QCommandLineOption store(QStringLiteral("store"),
                                   QStringLiteral("Opens one of the user's other stores."),
                                   QStringLiteral("number"), QString::number(ProgramFolders::firstStore));
    parser.addOption(store);
    parser.process(application);
    return std::max(parser.value(store).toInt(), ProgramFolders::firstStore);
}

int run(const ProgramFolders& folders, OwnStore own, InstanceGuard& guard, const EndSignals& endSignals) {
    const ServiceOrigins origins = publicServices();
    SystemClock clock;
    ThreadWorker worker;
    const HostLocalTime localTime;
    const Locale locale(LocaleNames::fromEnvironment(environmentVariable));
    QtHttpClient http;
    KeychainSecretStore secrets;
    UserStores stores(std::move(own.first), own.number, secrets);
    JsonDefaults defaults(folders.config / "defaults.json");
    DesktopAppearance appearance;
    const MyAppParts parts{http, clock, worker, localTime, locale, secrets, defaults};
    auto begun = MyApp::start(
        parts, folders.data / "vantrell.sqlite",
        {.reportService = origins.reportService, .rateService = origins.rateService, .store = own.number});
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        std::cerr << failure->text << std::endl;
        showStartFailure(failure->text, locale, appearance, endSignals);
        return EXIT_FAILURE;
    }
    ImageLoaderSettings icons;
    icons.folder = folders.cache / "icons";
    MyApp& app = *std::get<std::unique_ptr<MyApp>>(begun);
    std::optional<AppWindows> windows(std::in_place, app, parts,
                                      AppWindowsParts{.origins = origins,
                                                      .appearance = appearance,
                                                      .icons = std::move(icons),
                                                      .otherStores = &stores,
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
    const int number = storeNumber(application);
    const auto first = ProgramFolders::ofUser();
    if (!first) {
        std::cerr << "There is no home folder to keep anything in: HOME is not set." << std::endl;
        return EXIT_FAILURE;
    }
    const ProgramFolders folders = first->ofStore(number);
    InstanceGuard guard(folders.data);
    if (!guard.isFirst() && guard.wakeFirst()) {
        return EXIT_SUCCESS;
    }
    return run(folders, {*first, number}, guard, endSignals);
}
