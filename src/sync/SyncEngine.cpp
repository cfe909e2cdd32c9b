#include "sync/SyncEngine.h"

#include "data/StoreCheck.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vantrell {
namespace {

constexpr auto longestRevisionWait = std::chrono::seconds(8);
constexpr std::size_t keptLogEntries = 2000;

}  // namespace

SyncEngine::SyncEngine(const SyncEngineParts& parts, SyncEngineSettings settings)
    : context_(parts.context),
      http_(parts.http),
      clock_(parts.clock),
      worker_(parts.worker),
      localTime_(parts.localTime),
      defaults_(parts.defaults),
      locale_(parts.locale),
      settings_(std::move(settings)),
      calendar_(parts.clock, parts.localTime),
      keychain_(parts.secrets),
      client_(parts.http, parts.clock, settings_.reportService) {
    take(keychain_.load());
    keychain_.whenLoadedLate([this](LoadedCredentials loaded) {
        // What was entered meanwhile is newer.
        if (!hasCredentials_) {
            take(std::move(loaded));
            Q_EMIT credentialsProblemChanged();
        }
    });
}

SyncEngine::~SyncEngine() {
    keychain_.whenLoadedLate({});
    life_.end();
}

bool SyncEngine::beginRun() {
    if (isSyncing_) {
        return false;
    }
    if (!hasCredentials_) {
        lastError_ = "Add your App Store Connect key in Settings first.";
        return false;
    }
    if (context_.health().isDamaged()) {
        lastError_ = "The store is damaged, so nothing is fetched into it.";
        return false;
    }
    isSyncing_ = true;
    stopRequested_ = false;
    lastError_ = std::nullopt;
    return true;
}

void SyncEngine::finishRun(std::string_view label) {
    if (isClosing()) {
        return;
    }
    pruneSyncLog();
    save();
    bumpRevision(true);
    setProgress("", std::nullopt);
    lastRunSummary_ =
        std::string(label) + " finished " + locale_.dateAndTime(clock_.now(), localTime_.zone());
    isSyncing_ = false;
}

void SyncEngine::bumpRevision(bool force) {
    const auto now = clock_.monotonic();
    if (!force && lastRevisionBump_ && now - *lastRevisionBump_ <= longestRevisionWait) {
        return;
    }
    lastRevisionBump_ = now;
    revision_ = revision_.value() + 1;
}

void SyncEngine::pruneSyncLog() {
    auto& entries = context_.syncLog();
    if (entries.all().size() <= keptLogEntries) {
        return;
    }
    std::vector<std::pair<Instant, RecordID>> newestFirst;
    for (const auto& [id, entry] : entries.all()) {
        newestFirst.emplace_back(entry.date, id);
    }
    std::ranges::sort(newestFirst, std::greater());
    for (std::size_t index = keptLogEntries; index < newestFirst.size(); ++index) {
        entries.remove(newestFirst[index].second);
    }
    Q_EMIT syncLogChanged();
}

bool SyncEngine::hasOkDailyReport() const {
    return std::ranges::any_of(context_.salesReports().all(), [](const auto& entry) {
        const SalesReport& report = entry.second;
        return report.frequencyRaw == rawText(ReportFrequency::daily) &&
               report.statusRaw == rawText(ReportStatus::ok);
    });
}

// What can't be saved waits in the context for the next time, and the store's health says why. One report
// whose lines are refused keeps those it had, and is no reason to keep all others waiting.
void SyncEngine::save() {
    for (auto error = context_.save(); error && error->report; error = context_.save()) {
        noteRejected(*error->report, error->description);
    }
}

void SyncEngine::savePending() {
    if (!isSyncing_) {
        save();
    }
}

QCoro::Task<> SyncEngine::checkStore() {
    return vantrell::checkStore(context_, worker_, life_.token());
}

QCoro::Task<> SyncEngine::pause() {
    return clock_.sleep(settings_.pause, life_.token());
}

QCoro::Task<> SyncEngine::breathe() {
    return clock_.sleep(std::chrono::microseconds::zero(), life_.token());
}

void SyncEngine::setProgress(std::string text, std::optional<double> fraction) {
    progressText_ = std::move(text);
    progressFraction_ = fraction;
}

}  // namespace vantrell
