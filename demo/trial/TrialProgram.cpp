#include "trial/TrialProgram.h"

#include "core/MyApp.h"
#include "data/CredentialsKeychain.h"
#include "platform/JsonDefaults.h"
#include "platform/KeyPair.h"
#include "platform/MemorySecretStore.h"
#include "platform/Overloaded.h"
#include "platform/QtHttpClient.h"
#include "platform/SystemClock.h"
#include "reports/APIToken.h"
#include "sample/SampleService.h"
#include "trial/ExportFiles.h"
#include "trial/RunProgress.h"
#include "trial/RunSummary.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

constexpr const char* issuerID = "3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15";
constexpr const char* keyID = "7QK2MZ8T5W";
constexpr const char* vendorNumber = "60419372";

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

// Where the store lies: the folder that was named, or a temporary one that stays for whoever wants to look.
fs::path dataFolder(const TrialOptions& options) {
    if (options.data) {
        return *options.data;
    }
    QTemporaryDir folder;
    folder.setAutoRemove(false);
    return folder.path().toStdString();
}

// The sample service lets in whoever signs with the key that was given; if that is no key, nobody.
std::string publicHalf(const std::string& privateKey) {
    try {
        return loadSigningKey(privateKey).publicPEM();
    } catch (const JWTError&) {
        return {};
    }
}

/// Everything around the program for one run: the real network, clock and settings, a secret store that
/// forgets, and the sample service unless another one is named.
class TrialSurroundings {
  public:
    TrialSurroundings(const TrialOptions& options, const fs::path& folder)
        : locale_(LocaleNames::fromEnvironment(environmentVariable)), defaults_(folder / "defaults.json") {
        KeyPair keys = options.key ? KeyPair{*options.key, publicHalf(*options.key)} : generateKeyPair();
        CredentialsKeychain(secrets_).store({issuerID, keyID, std::move(keys.privatePEM), vendorNumber});
        if (!options.service) {
            account_ = std::make_unique<sample::SampleAccount>();
            service_ = std::make_unique<sample::SampleService>(
                *account_, sample::SampleAccess{issuerID, keyID, vendorNumber, std::move(keys.publicPEM)},
                clock_);
        }
        origin_ = options.service ? *options.service : service_->origin();
    }

    [[nodiscard]] MyAppParts parts() { return {http_, clock_, localTime_, locale_, secrets_, defaults_}; }
    [[nodiscard]] const Locale& locale() const { return locale_; }
    [[nodiscard]] const std::string& origin() const { return origin_; }

  private:
    SystemClock clock_;
    HostLocalTime localTime_;
    Locale locale_;
    QtHttpClient http_;
    MemorySecretStore secrets_;
    JsonDefaults defaults_;
    std::unique_ptr<sample::SampleAccount> account_;
    std::unique_ptr<sample::SampleService> service_;
    std::string origin_;
};

QCoro::Task<> write(QCoro::Task<std::string> result, std::ostream& output) {
    const std::string text = co_await std::move(result);
    output << text << std::endl;
}

QCoro::Task<> started(SyncEngine& engine, const TrialOperation& operation, std::ostream& output) {
    return std::visit(
        Overloaded{[&](const DoAutomaticRun&) { return engine.autoSync(); },
                   [&](const DoSync&) { return engine.runSync(); },
                   [&](const DoBackfill&) { return engine.runBackfill(); },
                   [&](const DoDay& day) { return engine.refetchDay(day.day); },
                   [&](const DoMonth& month) { return engine.refetchMonth(month.text); },
                   [&](const DoFinance& finance) { return engine.refetchFinance(finance.period); },
                   [&](const DoRates&) { return engine.refreshRates(true); },
                   [&](const DoTest&) { return write(engine.testConnection(), output); }},
        operation);
}

void runToTheEnd(MyApp& app, const TrialOperation& operation, std::ostream& output) {
    app.tasks().spawn(started(app.engine(), operation, output));
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

}  // namespace

TrialEnd runTrial(const TrialOptions& options, std::ostream& output, std::ostream& errors) {
    const fs::path folder = dataFolder(options);
    const fs::path storeFile = folder / "vantrell.sqlite";
    TrialSurroundings surroundings(options, folder);
    auto begun = MyApp::start(surroundings.parts(), storeFile,
                              {surroundings.origin(), surroundings.origin(), options.pause});
    if (const auto* failure = std::get_if<StartFailure>(&begun)) {
        errors << onOneLine(failure->text) << std::endl;
        return TrialEnd::noStore;
    }
    MyApp& app = *std::get<std::unique_ptr<MyApp>>(begun);
    if (options.currency) {
        app.store().setDisplayCurrency(*options.currency);
    }
    const RunProgress progress(app.engine(), errors);
    runToTheEnd(app, options.operation, output);
    app.store().reload(app.context());
    if (!std::holds_alternative<DoTest>(options.operation)) {
        writeRunSummary(app, surroundings.locale(), output);
        output << "\nThe store is " << fs::absolute(storeFile).string() << std::endl;
    }
    const bool isWritten = !options.exports || exported(app.store(), *options.exports, output, errors);
    if (const auto error = app.engine().lastError()) {
        errors << onOneLine(*error) << std::endl;
        return TrialEnd::runFailed;
    }
    return isWritten ? TrialEnd::done : TrialEnd::notWritten;
}

}  // namespace vantrell
