#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/ReportSchedule.h"
#include "sync/SyncEngine.h"

#include <algorithm>

// The ordinary run, and what decides whether a run is due.

namespace vantrell {
namespace {

constexpr const char* lastAutoSyncKey = "lastAutoSyncAt";
constexpr auto autoSyncInterval = std::chrono::hours(4);

}  // namespace

QCoro::Task<> SyncEngine::runSync() {
    if (!beginRun()) {
        co_return;
    }
    co_await syncRecentDays();
    co_await syncRecentMonths();
    co_await syncLastYear();
    co_await syncNextFinancePeriods();
    co_await refreshRates(false);
    finishRun("Sync");
}

QCoro::Task<> SyncEngine::syncRecentDays() {
    const CivilDate today = calendar_.today();
    for (int offset = 1; offset <= daysOfSync && !stopRequested_; ++offset) {
        const auto day = movedByDays(today, -offset);
        if (!day) {
            continue;
        }
        const std::string label = reportLabel(*day, ReportFrequency::daily);
        const auto stored = findOrCreateSalesReport(ReportFrequency::daily, label);
        const bool due = isDayDue(stored.record.status(), offset);
        setProgress("Daily reports", static_cast<double>(offset) / daysOfSync);
        if (due) {
            co_await syncSalesReport(ReportFrequency::daily, label, true);
        }
        if (isClosing()) {
            co_return;
        }
    }
}

QCoro::Task<> SyncEngine::syncRecentMonths() {
    const CivilDate today = calendar_.today();
    for (int offset = 1; offset <= monthsOfSync && !stopRequested_ && !isClosing(); ++offset) {
        const auto day = movedByMonths(today, -offset);
        if (!day) {
            continue;
        }
        setProgress("Monthly reports", std::nullopt);
        co_await syncSalesReport(ReportFrequency::monthly, reportLabel(*day, ReportFrequency::monthly),
                                 false);
    }
}

QCoro::Task<> SyncEngine::syncLastYear() {
    if (stopRequested_ || isClosing()) {
        co_return;
    }
    setProgress("Yearly reports", std::nullopt);
    const std::string label = zeroPadded(calendar_.currentYear() - yearsOfSync, 4);
    co_await syncSalesReport(ReportFrequency::yearly, label, false);
}

QCoro::Task<> SyncEngine::syncNextFinancePeriods() {
    std::string period = nextFiscalPeriod(newestOkFiscalPeriod());
    for (int step = 0; step < financePeriodsOfSync && !stopRequested_ && !isClosing(); ++step) {
        setProgress("Finance reports · " + period, std::nullopt);
        co_await syncFinanceReport(period, true);
        period = nextFiscalPeriod(period);
    }
}

std::string SyncEngine::newestOkFiscalPeriod() const {
    std::string newest;
    for (const auto& [id, report] : context_.financeReports().all()) {
        if (report.statusRaw == rawText(ReportStatus::ok)) {
            newest = std::max(newest, report.fiscalPeriod);
        }
    }
    return newest.empty() ? std::string(financeSeed) : newest;
}

QCoro::Task<> SyncEngine::runDue() {
    return hasOkDailyReport() ? runSync() : runBackfill();
}

QCoro::Task<> SyncEngine::autoSyncIfDue() {
    if (!hasCredentials_ || isSyncing_) {
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
    if (hasCredentials_ && !isSyncing_) {
        defaults_.setDate(lastAutoSyncKey, clock_.now());
    }
    co_await runDue();
}

QCoro::Task<> SyncEngine::backfillIfEmpty() {
    if (hasCredentials_ && !isSyncing_ && !hasOkDailyReport()) {
        co_await runBackfill();
    }
}

}  // namespace vantrell
