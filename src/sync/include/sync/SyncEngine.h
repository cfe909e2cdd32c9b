#pragma once

#include "base/Clock.h"
#include "base/Lifetime.h"
#include "base/LocalTime.h"
#include "base/Worker.h"
#include "calendar/ReportCalendar.h"
#include "data/ModelContext.h"
#include "files/Defaults.h"
#include "net/HttpClient.h"
#include "reports/ASCClient.h"
#include "secrets/SecretStore.h"
#include "sync/Account.h"
#include "sync/RunFacts.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include <QObject>
#include <QProperty>
#include <qcoro/qcorotask.h>

namespace vantrell {

class Intake;
class MonthDoubts;
class RunTally;
struct IntakeResult;
struct RunBasis;
struct RunPlan;
struct RunStep;

/// What the engine works with. All of it must outlive the engine.
struct SyncEngineParts {
    ModelContext& context;
    HttpClient& http;
    Clock& clock;
    Worker& worker;
    const LocalTime& localTime;
    SecretStore& secrets;
    Defaults& defaults;
};

/// Where the services are ("https://host", no path), and how long to pause after each report.
struct SyncEngineSettings {
    std::string reportService;
    std::string rateService;
    std::chrono::microseconds pause = std::chrono::milliseconds(150);
    std::filesystem::path keptLines = {};  ///< the folder for lines in whose place nothing comes
    bool othersWrite = false;              ///< another device can write into the store
    int store = 1;                         ///< which of the user's stores it is, each with a key of its own
};

/// The one object that changes the stored reports. It carries runs out, one request after another, and says
/// through its properties how they go.
///
/// A failure of a report is data; what stopped or prevented a run stands in `lastError` until the next run
/// begins. Every change of a property is signalled, a write of the same value is not. Main thread only.
/// Destroying the engine ends a run at the next moment it waits, and changes nothing more.
class SyncEngine : public QObject {
    Q_OBJECT

  public:
    SyncEngine(const SyncEngineParts& parts, const SyncEngineSettings& settings);
    ~SyncEngine() override;

    /// Ends what is under way at the next moment it waits; nothing starts any more. To be called before the
    /// engine goes, so that those who wait can leave while it is still there.
    void close() { life_.end(); }

    [[nodiscard]] Account& account() { return account_; }
    [[nodiscard]] bool hasCredentials() const { return account_.hasCredentials(); }

    [[nodiscard]] bool isSyncing() const { return isSyncing_; }
    /// Absent without a run, and at its beginning.
    [[nodiscard]] std::optional<RunProgress> progress() const { return progress_; }
    [[nodiscard]] std::optional<FinishedRun> lastRun() const { return lastRun_; }
    [[nodiscard]] std::optional<RunFailure> lastError() const { return lastError_; }
    /// Raised whenever stored data has changed: at most once in 8 seconds during a run, and at its end.
    [[nodiscard]] std::int64_t revision() const { return revision_; }

    /// Ends the run under way at its next check; a request that is out is still answered and stored.
    void requestStop() { stopRequested_ = true; }

    // Runs. Each comes to its end also after a stop; none starts beside another or without credentials.

    /// The ordinary run: the last 14 days, 2 months, last year, the next 2 fiscal periods and the rates; then
    /// whatever else the service may still have and earlier runs didn't get.
    [[nodiscard]] QCoro::Task<> runSync();
    /// Everything that the service still has and that isn't final: a year of days, the years, 12 months, all
    /// fiscal periods from 2024-01, and the rates.
    [[nodiscard]] QCoro::Task<> runBackfill();
    /// A backfill while no daily report was ever answered, else the ordinary run.
    [[nodiscard]] QCoro::Task<> runDue();
    /// `runDue`, noting the time, unless the last such run began within 4 hours.
    [[nodiscard]] QCoro::Task<> autoSyncIfDue();
    /// The same without regard to when the last one began.
    [[nodiscard]] QCoro::Task<> autoSync();
    /// To be called when credentials were saved.
    [[nodiscard]] QCoro::Task<> backfillIfEmpty();

    // Re-fetches overrule the stored status.

    [[nodiscard]] QCoro::Task<> refetchDay(CivilDate day);
    /// `text` is a month like "2026-08".
    [[nodiscard]] QCoro::Task<> refetchMonth(std::string text);
    [[nodiscard]] QCoro::Task<> refetchFinance(std::string fiscalPeriod);

    /// Fetches the exchange rates if they are older than a day, or by force. Needs no run.
    [[nodiscard]] QCoro::Task<> refreshRates(bool force);

    /// Whether the service ever gave, or had none to give, the report of a day.
    [[nodiscard]] bool hasAnsweredDailyReport() const;
    /// Whether the stored reports came with another vendor number than this one. What isn't known isn't so.
    [[nodiscard]] bool isOfOtherVendor(const std::string& vendor) const;
    /// From now on the reports of this vendor number are stored beside those that are there.
    void takeVendor(const std::string& vendor);
    /// The first run from now on begins with the exchange rates, if they are old, so that the first figures
    /// are in all currencies.
    void askForRatesFirst() { ratesComeFirst_ = true; }
    /// The same where that run may not be due for hours.
    [[nodiscard]] QCoro::Task<> takeRatesFirst();

    /// Looks through the store's file for damage, beside the window; to be awaited before the first run. The
    /// store's health tells what was found.
    [[nodiscard]] QCoro::Task<> checkStore();
    /// Saves what an earlier save could not, unless a run does it soon.
    void savePending();

  Q_SIGNALS:
    void isSyncingChanged();
    void progressChanged();
    void lastRunChanged();
    void lastErrorChanged();
    void revisionChanged();
    /// A line was added to the sync log, or old ones were removed.
    void syncLogChanged();

  private:
    [[nodiscard]] QCoro::Task<> carryOut(RunKind kind, RunPlan plan);
    [[nodiscard]] RunBasis basis() const;
    [[nodiscard]] bool begin();
    void finish(RunKind kind);
    [[nodiscard]] QCoro::Task<> perform(RunStep step);
    void note(const IntakeResult& result);
    [[nodiscard]] bool mustSpareRequests() const;
    void bumpRevision(bool force);
    /// The engine is being destroyed: whoever was waiting leaves without touching anything.
    [[nodiscard]] bool isClosing() const { return life_.token().stop_requested(); }

    Lifetime life_;
    ModelContext& context_;
    Clock& clock_;
    Worker& worker_;
    Defaults& defaults_;
    const std::chrono::microseconds pause_;
    ReportCalendar calendar_;
    ASCClient client_;
    Account account_;
    std::unique_ptr<Intake> intake_;
    std::unique_ptr<MonthDoubts> monthDoubts_;
    std::unique_ptr<RunTally> tally_;                            ///< of the run under way
    std::optional<std::chrono::microseconds> lastRevisionBump_;  ///< by the monotonic clock
    bool stopRequested_ = false;
    bool ratesComeFirst_ = false;

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, bool, isSyncing_, false, &SyncEngine::isSyncingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::optional<RunProgress>, progress_,
                               &SyncEngine::progressChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::optional<FinishedRun>, lastRun_, &SyncEngine::lastRunChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::optional<RunFailure>, lastError_,
                               &SyncEngine::lastErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, std::int64_t, revision_, 0, &SyncEngine::revisionChanged)
};

}  // namespace vantrell
