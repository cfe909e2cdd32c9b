#include "sync/SyncEngine.h"

#include "Intake.h"
#include "LastRun.h"
#include "MonthDoubts.h"
#include "RunPlan.h"
#include "RunTally.h"
#include "calendar/ReportSchedule.h"
#include "data/StoreCheck.h"

#include <algorithm>
#include <utility>

#include <QCryptographicHash>

namespace vantrell {
namespace {

constexpr const char* lastAutoSyncKey = "lastAutoSyncAt";
constexpr const char* storedVendorKey = "storedVendorMark";
constexpr auto autoSyncInterval = std::chrono::hours(4);
constexpr int sparedRequests = 300;
constexpr auto longestRevisionWait = std::chrono::seconds(8);

/// Tells vendor numbers apart; the number itself belongs to the key and is in no file.
std::string markOf(const std::string& vendor) {
    return QCryptographicHash::hash(QByteArray::fromStdString(vendor), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

}  // namespace

SyncEngine::SyncEngine(const SyncEngineParts& parts, const SyncEngineSettings& settings)
    : context_(parts.context),
      clock_(parts.clock),
      worker_(parts.worker),
      defaults_(parts.defaults),
      pause_(settings.pause),
      calendar_(parts.clock, parts.localTime),
      client_(parts.http, parts.clock, settings.reportService),
      account_(parts.secrets, client_, calendar_, parts.worker, life_.token(), settings.store),
      intake_(std::make_unique<Intake>(IntakeParts{
          parts.context, parts.http, parts.clock, parts.worker, client_, settings.rateService, life_.token(),
          [this] { Q_EMIT syncLogChanged(); }, settings.keptLines, settings.othersWrite})) {
    monthDoubts_ = std::make_unique<MonthDoubts>(context_, clock_, defaults_, life_.token());
    lastRun_ = keptLastRun(defaults_, clock_.now());
}

SyncEngine::~SyncEngine() {
    close();
}

QCoro::Task<> SyncEngine::runSync() {
    return carryOut(RunKind::sync, {ordinarySteps});
}

QCoro::Task<> SyncEngine::runBackfill() {
    return carryOut(RunKind::backfill, {backfillSteps});
}

QCoro::Task<> SyncEngine::runDue() {
    return hasAnsweredDailyReport() ? runSync() : runBackfill();
}

QCoro::Task<> SyncEngine::autoSyncIfDue() {
    if (!hasCredentials() || isSyncing_) {
        co_return;
    }
    const auto last = defaults_.date(lastAutoSyncKey);
    // A time that lies ahead was noted before the clock was set back.
    if (last && *last <= clock_.now() && clock_.now() - *last <= autoSyncInterval) {
        co_return;
    }
    co_await autoSync();
}

QCoro::Task<> SyncEngine::autoSync() {
    // Noted before the run, so that a run that fails counts as well.
    if (hasCredentials() && !isSyncing_) {
        defaults_.setDate(lastAutoSyncKey, clock_.now());
    }
    co_await runDue();
}

QCoro::Task<> SyncEngine::backfillIfEmpty() {
    if (hasCredentials() && !isSyncing_ && !hasAnsweredDailyReport()) {
        co_await runBackfill();
    }
}

QCoro::Task<> SyncEngine::refetchDay(CivilDate day) {
    return carryOut(RunKind::refetch, {std::bind_front(dayAgain, day)});
}

QCoro::Task<> SyncEngine::refetchMonth(std::string text) {
    if (const auto month = parseYearMonth(text)) {
        RunPlan plan{std::bind_front(monthAgain, *month, std::move(text))};
        co_await carryOut(RunKind::refetch, std::move(plan));
    } else {
        lastError_ = RunFailure{RunFailure::Kind::noMonth};
    }
}

QCoro::Task<> SyncEngine::refetchFinance(std::string fiscalPeriod) {
    return carryOut(RunKind::refetch, {std::bind_front(financeAgain, std::move(fiscalPeriod))});
}

QCoro::Task<> SyncEngine::refreshRates(bool force) {
    if (force || areRatesDue(basis())) {
        RunStep step{RatesRequest{}};
        co_await perform(std::move(step));
    }
}

QCoro::Task<> SyncEngine::takeRatesFirst() {
    if (hasCredentials() && std::exchange(ratesComeFirst_, false) && areRatesDue(basis())) {
        RunStep step{RatesRequest{}};
        co_await perform(std::move(step));
    }
}

bool SyncEngine::hasAnsweredDailyReport() const {
    return std::ranges::any_of(context_.salesReports().all(), [](const auto& entry) {
        const SalesReport& report = entry.second;
        return report.frequencyRaw == rawText(ReportFrequency::daily) &&
               (isKnown(report.status()) || isFinal(report.status()) || report.rowCount > 0);
    });
}

bool SyncEngine::isOfOtherVendor(const std::string& vendor) const {
    if (const auto mark = defaults_.text(storedVendorKey)) {
        return *mark != markOf(vendor);
    }
    return hasCredentials() && hasAnsweredDailyReport() && account_.credentials().vendorNumber != vendor;
}

void SyncEngine::takeVendor(const std::string& vendor) {
    defaults_.setText(storedVendorKey, markOf(vendor));
}

QCoro::Task<> SyncEngine::checkStore() {
    return vantrell::checkStore(context_, worker_, life_.token());
}

void SyncEngine::savePending() {
    if (!isSyncing_) {
        intake_->save();
    }
}

// The one loop: it alone knows of a stop, of pauses, of what ends a run and of the end of the program. A stop
// leaves out the reports that are left, and not the rates.
QCoro::Task<> SyncEngine::carryOut(RunKind kind, RunPlan plan) {
    if (!begin()) {
        co_return;
    }
    co_await takeRatesFirst();
    if (isClosing()) {
        co_return;
    }
    RunSteps steps = plan.steps(basis());
    for (const RunStep& step : steps) {
        if (step.isReport() && (stopRequested_ || (step.isGap && mustSpareRequests()))) {
            continue;
        }
        if (step.progress) {
            progress_ = step.progress;
        }
        if (step.isDue) {
            co_await perform(step);
        }
        if (isClosing()) {
            co_return;
        }
    }
    finish(kind);
}

RunBasis SyncEngine::basis() const {
    return {clock_, calendar_, context_, *monthDoubts_};
}

bool SyncEngine::begin() {
    if (isSyncing_) {
        return false;
    }
    if (!hasCredentials() || context_.health().isDamaged()) {
        using enum RunFailure::Kind;
        lastError_ = RunFailure{hasCredentials() ? damagedStore : noKey};
        return false;
    }
    isSyncing_ = true;
    stopRequested_ = false;
    lastError_ = std::nullopt;
    client_.beginRun();
    tally_ = std::make_unique<RunTally>();
    return true;
}

void SyncEngine::finish(RunKind kind) {
    intake_->pruneLog();
    intake_->save();
    bumpRevision(true);
    progress_ = std::nullopt;
    if (!lastError_.value()) {
        lastError_ = tally_->nothingStored();
    }
    if (!defaults_.text(storedVendorKey) && hasAnsweredDailyReport()) {
        takeVendor(account_.credentials().vendorNumber);
    }
    const FinishedRun run{kind, clock_.now(), tally_->failed(), tally_->firstProblem()};
    keepLastRun(run, defaults_);
    lastRun_ = run;
    isSyncing_ = false;
}

// Rates take no turn: neither is their service paused for, nor do the figures wait for them.
QCoro::Task<> SyncEngine::perform(RunStep step) {
    if (isClosing()) {
        co_return;
    }
    IntakeResult result =
        co_await std::visit([this](const auto& request) { return intake_->take(request); }, step.request);
    if (isClosing()) {
        co_return;
    }
    const bool isLimited = result.failure && result.failure->kind == RunFailure::Kind::rateLimited;
    if (step.isReport()) {
        note(result);
    }
    if (result.isStored) {
        bumpRevision(!step.isReport());
    }
    const auto* const sales = std::get_if<SalesReportRequest>(&step.request);
    if (result.isStored && sales != nullptr && sales->frequency == ReportFrequency::monthly) {
        co_await monthDoubts_->compare(sales->reportDate);
    }
    if (step.isReport() && !isLimited && !isClosing()) {
        co_await clock_.sleep(pause_, life_.token());
    }
}

void SyncEngine::note(const IntakeResult& result) {
    tally_->add(result);
    if (auto failure = result.failure ? result.failure : tally_->unreachable()) {
        lastError_ = std::move(failure);
        stopRequested_ = true;
    }
}

/// What can wait leaves the last requests of the hour to what is asked for by hand.
bool SyncEngine::mustSpareRequests() const {
    const auto left = client_.notes().requestsLeft;
    return left && *left < sparedRequests;
}

void SyncEngine::bumpRevision(bool force) {
    const auto now = clock_.monotonic();
    if (!force && lastRevisionBump_ && now - *lastRevisionBump_ <= longestRevisionWait) {
        return;
    }
    lastRevisionBump_ = now;
    revision_ = revision_.value() + 1;
}

}  // namespace vantrell
