#include "trial/TrialProgram.h"

#include "base/Overloaded.h"
#include "core/AppWindows.h"
#include "core/DesktopAppearance.h"
#include "core/EndSignals.h"
#include "core/MyApp.h"
#include "files/InstanceGuard.h"
#include "screens/words/RunWords.h"
#include "screens/words/StoreNotice.h"
#include "trial/ExportFiles.h"
#include "trial/ProgressLines.h"
#include "trial/RunSummary.h"
#include "trial/ScreenCamera.h"
#include "trial/ScreenTour.h"
#include "trial/TrialSurroundings.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

[[nodiscard]] QCoro::Task<> test(Account& account, std::ostream& output) {
    const auto result = co_await account.testConnection();
    output << connectionText(result).toStdString() << std::endl;
}

[[nodiscard]] QCoro::Task<> started(SyncEngine& engine, const TrialOperation& operation,
                                    std::ostream& output) {
    return std::visit(
        Overloaded{[&](const DoAutomaticRun&) { return engine.autoSync(); },
                   [&](const DoSync&) { return engine.runSync(); },
                   [&](const DoBackfill&) { return engine.runBackfill(); },
                   [&](const DoDay& day) { return engine.refetchDay(day.day); },
                   [&](const DoMonth& month) { return engine.refetchMonth(month.text); },
                   [&](const DoFinance& finance) { return engine.refetchFinance(finance.period); },
                   [&](const DoRates&) { return engine.refreshRates(true); },
                   [&](const DoTest&) { return test(engine.account(), output); }},
        operation);
}

// The store is looked through before anything is fetched into it, as in the window.
[[nodiscard]] QCoro::Task<> checked(MyApp& app, const TrialOperation& operation, std::ostream& output) {
    co_await app.engine().checkStore();
    co_await started(app.engine(), operation, output);
}

void runToTheEnd(MyApp& app, const TrialOperation& operation, std::ostream& output) {
    app.store().reload(app.context());
    app.tasks().spawn(checked(app, operation, output));
    while (app.tasks().pending() != 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

std::string onOneLine(std::string text) {
    std::ranges::replace_if(
        text, [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    return text;
}

bool exported(const EarningsStore& store, const fs::path& folder, std::ostream& output,
              std::ostream& errors) {
    if (const auto problem = writeExports(store, folder)) {
        errors << onOneLine(*problem) << std::endl;
        return false;
    }
    output << "The exports are in " << folder.string() << std::endl;
    return true;
}

bool pictured(MyApp& app, TrialSurroundings& surroundings, const fs::path& folder, std::ostream& output,
              std::ostream& errors) {
    FixedAppearance appearance;
    ScreenCamera camera(appearance, folder);
    AppWindowsParts windowParts = surroundings.windowParts(appearance);
    windowParts.placementFile.reset();
    const auto stopped =
        showScreens({app, surroundings.parts(), windowParts, surroundings.storeFile()},
                    [&](QQuickWindow& window, const std::string& name) { camera.take(window, name); });
    if (const auto problem = stopped ? stopped : camera.problem()) {
        errors << onOneLine(*problem) << std::endl;
        return false;
    }
    output << "The pictures are in " << folder.string() << std::endl;
    return true;
}

/// Ends all that is under way; what still isn't stored then comes before how else it went.
TrialEnd closed(MyApp& app, TrialSurroundings& surroundings, TrialEnd end, std::ostream& errors) {
    app.close();
    const auto unsaved = surroundings.settings().saveAll();
    const auto problem = storeProblem(app.context().health());
    if (problem || unsaved) {
        errors << onOneLine(problem ? *problem : *unsaved) << std::endl;
        end = TrialEnd::notStored;
    }
    app.leave(static_cast<int>(end));
    return end;
}

TrialEnd told(MyApp& app, TrialSurroundings& surroundings, bool isWritten, std::ostream& errors) {
    TrialEnd end = isWritten ? TrialEnd::done : TrialEnd::notWritten;
    if (const auto failure = app.engine().lastError()) {
        errors << onOneLine(runText(failure).toStdString()) << std::endl;
        end = TrialEnd::runFailed;
    }
    return closed(app, surroundings, end, errors);
}

}  // namespace

TrialEnd runTrial(TrialOptions options, std::ostream& output, std::ostream& errors) {
    TrialSurroundings surroundings(options, std::exchange(options.key, std::nullopt));
    auto begun = surroundings.start();
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        errors << onOneLine(failure->text) << std::endl;
        return TrialEnd::noStore;
    }
    MyApp& app = *std::get<std::unique_ptr<MyApp>>(begun);
    const ProgressLines progress(app.engine(), errors);
    runToTheEnd(app, options.operation, output);
    app.store().reload(app.context());
    if (!std::holds_alternative<DoTest>(options.operation)) {
        writeRunSummary(app, surroundings.locale(), output);
        output << "\nThe store is " << fs::absolute(surroundings.storeFile()).string() << std::endl;
    }
    // Figures with holes must not take the place of good ones.
    const bool isWhole = !app.context().health().isDamaged();
    const bool isExported =
        !options.exports || (isWhole && exported(app.store(), *options.exports, output, errors));
    const bool isPictured = !options.screens || pictured(app, surroundings, *options.screens, output, errors);
    return told(app, surroundings, isExported && isPictured, errors);
}

TrialEnd openTrialWindow(TrialOptions options, std::ostream& output, std::ostream& errors) {
    const EndSignals endSignals;
    TrialSurroundings surroundings(options, std::exchange(options.key, std::nullopt));
    InstanceGuard guard(surroundings.folder());
    if (!guard.isFirst() && guard.wakeFirst()) {
        return TrialEnd::done;
    }
    auto begun = surroundings.start();
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        errors << onOneLine(failure->text) << std::endl;
        return TrialEnd::noStore;
    }
    MyApp& app = *std::get<std::unique_ptr<MyApp>>(begun);
    output << "The store is " << fs::absolute(surroundings.storeFile()).string() << std::endl;
    DesktopAppearance appearance;
    std::optional<AppWindows> windows(std::in_place, app, surroundings.parts(),
                                      surroundings.windowParts(appearance));
    QObject::connect(&guard, &InstanceGuard::wakened, &*windows, &AppWindows::raise);
    windows->show();
    static_cast<void>(endSignals.exec());
    // What they keep moving ends with them, and would be waited for.
    windows.reset();
    return closed(app, surroundings, TrialEnd::done, errors);
}

}  // namespace vantrell
