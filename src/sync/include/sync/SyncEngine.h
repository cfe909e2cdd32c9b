#pragma once

#include "base/Clock.h"
#include "base/Lifetime.h"
#include "base/LocalTime.h"
#include "base/Worker.h"
#include "calendar/ReportCalendar.h"
#include "calendar/YearMonth.h"
#include "data/APICredentials.h"
#include "data/CredentialsKeychain.h"
#include "data/ModelContext.h"
#include "files/Defaults.h"
#include "locale/Locale.h"
#include "net/HttpClient.h"
#include "reports/ASCClient.h"
#include "secrets/SecretStore.h"
#include "sync/ReportRequests.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QObject>
#include <QProperty>
#include <qcoro/qcorotask.h>

namespace vantrell {

/// What the engine works with. All of it must outlive the engine.
struct SyncEngineParts {
    ModelContext& context;
    HttpClient& http;
    Clock& clock;
    Worker& worker;
    const LocalTime& localTime;
    SecretStore& secrets;
    Defaults& defaults;
    const Locale& locale;
};

/// Where the services are ("https://host", no path), and how long to pause after each report.
struct SyncEngineSettings {
    std::string reportService;
    std::string rateService;
    std::chrono::microseconds pause = std::chrono::milliseconds(150);
};

/// The one object that changes the stored reports. It knows which reports are due, asks for them one at a
/// time, stores each with its status and log line in one save, and says through its properties how it goes.
///
/// A failure of a report is data; what stopped or prevented a run stands in `lastError` until the next run
/// begins. Every change of a property is signalled, a write of the same value is not. Main thread only.
/// Destroying the engine ends a run at the next moment it waits, and changes nothing more.
class SyncEngine : public QObject {
    Q_OBJECT

  public:
    /// Reads the stored credentials.
    SyncEngine(const SyncEngineParts& parts, SyncEngineSettings settings);
    ~SyncEngine() override;

    /// Ends what is under way at the next moment it waits; nothing starts any more. To be called before the
    /// engine goes, so that those who wait can leave while it is still there.
    void close() { life_.end(); }

    /// The stored credentials are complete.
    [[nodiscard]] bool hasCredentials() const { return hasCredentials_; }
    /// Why the secret service could not be read at the start; absent when it could, also without a key. It
    /// may answer later.
    [[nodiscard]] const std::optional<std::string>& credentialsProblem() const { return credentialsProblem_; }
    /// What requests are signed with; four empty texts without a key.
    [[nodiscard]] const APICredentials& credentials() const { return client_.credentials(); }
    [[nodiscard]] bool isSyncing() const { return isSyncing_; }
    /// What the run is doing now; empty without one.
    [[nodiscard]] std::string progressText() const { return progressText_; }
    /// 0 to 1; absent for progress that can't be told.
    [[nodiscard]] std::optional<double> progressFraction() const { return progressFraction_; }
    [[nodiscard]] std::string lastRunSummary() const { return lastRunSummary_; }
    [[nodiscard]] std::optional<std::string> lastError() const { return lastError_; }
    /// Raised whenever stored data has changed: at most once in 8 seconds during a run, and at its end.
    [[nodiscard]] std::int64_t revision() const { return revision_; }

    [[nodiscard]] bool stopRequested() const { return stopRequested_; }
    /// Ends the run under way at its next check; a request that is out is still answered and stored.
    void requestStop() { stopRequested_ = true; }

    // Runs. Each ends with `finishRun`, also after a stop; none starts beside another or without credentials.

    /// The ordinary run: the last 14 days, 2 months, last year, the next 2 fiscal periods and the rates.
    [[nodiscard]] QCoro::Task<> runSync();
    /// Everything that the service still has and that isn't final: a year of days, the years, 12 months, all
    /// fiscal periods from 2024-01, and the rates.
    [[nodiscard]] QCoro::Task<> runBackfill();
    /// A backfill without a daily report that is ok, else the ordinary run.
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

    /// Tries the credentials with one real request and stores nothing. The result is a text for the user.
    [[nodiscard]] QCoro::Task<std::string> testConnection();

    /// Throws CredentialsError, and then changes nothing here, if the secret service refuses.
    void saveCredentials(const APICredentials& credentials);
    /// Forgets the key; stored reports stay. Throws CredentialsError, and then forgets nothing, if the secret
    /// service refuses.
    void removeCredentials();

    [[nodiscard]] bool hasOkDailyReport() const;

    /// Looks through the store's file for damage, beside the window; to be awaited before the first run. The
    /// store's health tells what was found.
    [[nodiscard]] QCoro::Task<> checkStore();
    /// Saves what an earlier save could not, unless a run does it soon.
    void savePending();

    // The pieces of a run.

    [[nodiscard]] bool beginRun();
    void finishRun(std::string_view label);
    void bumpRevision(bool force);
    void pruneSyncLog();

    /// Takes one report from its stored status through one request to its new one. Without `force` a final
    /// report is passed over.
    [[nodiscard]] QCoro::Task<ReportStatus> syncSalesReport(ReportFrequency frequency, std::string reportDate,
                                                            bool force);
    [[nodiscard]] QCoro::Task<ReportStatus> syncFinanceReport(std::string fiscalPeriod, bool force);

  Q_SIGNALS:
    void hasCredentialsChanged();
    void credentialsProblemChanged();
    void isSyncingChanged();
    void progressTextChanged();
    void progressFractionChanged();
    void lastRunSummaryChanged();
    void lastErrorChanged();
    void revisionChanged();
    void stopRequestedChanged();
    /// A line was added to the sync log, or old ones were removed.
    void syncLogChanged();

  private:
    enum class Applied { stored, skipped, rateLimited };

    /// What a report says.
    template <typename Request>
    struct Content {
        std::vector<typename Request::Line> lines;
        bool isReport = false;
        std::string message;
    };

    template <typename Request>
    Stored<typename Request::Record> findOrCreate(const Request& request);
    Stored<SalesReport> findOrCreateSalesReport(ReportFrequency frequency, std::string reportDate);
    template <typename Request>
    [[nodiscard]] QCoro::Task<ReportStatus> syncReport(Request request, bool force);
    template <typename Request>
    [[nodiscard]] QCoro::Task<Content<Request>> read(std::string body);
    template <typename Request>
    [[nodiscard]] QCoro::Task<> encode(std::span<typename Request::Row> rows,
                                       std::vector<typename Request::Line>& lines);
    template <typename Request>
    Applied apply(const Request& request, const ReportResponse& answer, Content<Request> content,
                  Instant started);
    template <typename Request>
    void settle(const Request& request, const ReportResponse& answer, Content<Request> content,
                typename Request::Record& report);
    [[nodiscard]] QCoro::Task<> saveInSteps();
    void stopForRateLimit(const std::string& key, const std::string& message);
    void log(std::string key, std::string_view outcome, std::string_view message);
    void save();
    void noteRejected(const ReportName& report, const std::string& reason);
    template <typename Request>
    void settleRejected(const Request& request, const std::string& reason);
    [[nodiscard]] QCoro::Task<> pause();
    /// Lets the event loop do what waits there.
    [[nodiscard]] QCoro::Task<> breathe();

    [[nodiscard]] QCoro::Task<> syncRecentDays();
    [[nodiscard]] QCoro::Task<> syncRecentMonths();
    [[nodiscard]] QCoro::Task<> syncLastYear();
    [[nodiscard]] QCoro::Task<> syncNextFinancePeriods();
    [[nodiscard]] QCoro::Task<> backfillDays();
    [[nodiscard]] QCoro::Task<> backfillYears();
    [[nodiscard]] QCoro::Task<> backfillMonths();
    [[nodiscard]] QCoro::Task<> syncFinanceRange(std::string from);
    [[nodiscard]] QCoro::Task<> refetchDaysOfMonth(std::string text, YearMonth month);
    [[nodiscard]] std::string newestOkFiscalPeriod() const;
    void storeRates(Rates rates);

    void take(LoadedCredentials loaded);
    void setProgress(std::string text, std::optional<double> fraction);
    /// The engine is being destroyed: whoever was waiting leaves without touching anything.
    [[nodiscard]] bool isClosing() const { return life_.token().stop_requested(); }

    ModelContext& context_;
    HttpClient& http_;
    Clock& clock_;
    Worker& worker_;
    const LocalTime& localTime_;
    Defaults& defaults_;
    const Locale& locale_;
    const SyncEngineSettings settings_;
    ReportCalendar calendar_;
    CredentialsKeychain keychain_;
    ASCClient client_;
    std::optional<std::string> credentialsProblem_;
    std::optional<std::chrono::microseconds> lastRevisionBump_;  ///< by the monotonic clock

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, bool, hasCredentials_, false,
                                         &SyncEngine::hasCredentialsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, bool, isSyncing_, false, &SyncEngine::isSyncingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::string, progressText_, &SyncEngine::progressTextChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::optional<double>, progressFraction_,
                               &SyncEngine::progressFractionChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::string, lastRunSummary_, &SyncEngine::lastRunSummaryChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SyncEngine, std::optional<std::string>, lastError_,
                               &SyncEngine::lastErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, std::int64_t, revision_, 0, &SyncEngine::revisionChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SyncEngine, bool, stopRequested_, false,
                                         &SyncEngine::stopRequestedChanged)

    // Last, so that whatever still waits is ended while everything above is alive.
    Lifetime life_;
};

}  // namespace vantrell
