#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/ReportSchedule.h"
#include "sync/SyncEngine.h"

#include <algorithm>
#include <vector>

// The run that fills a store with everything the service still has.

namespace vantrell {

QCoro::Task<> SyncEngine::runBackfill() {
    if (!beginRun()) {
        co_return;
    }
    co_await backfillDays();
    co_await backfillYears();
    co_await backfillMonths();
    co_await syncFinanceRange(std::string(firstBackfillPeriod));
    co_await refreshRates(true);
    finishRun("Backfill");
}

QCoro::Task<> SyncEngine::backfillDays() {
    const CivilDate today = calendar_.today();
    for (int offset = 1; offset <= daysOfBackfill && !stopRequested_ && !isClosing(); ++offset) {
        const auto day = movedByDays(today, -offset);
        if (!day) {
            continue;
        }
        const std::string label = reportLabel(*day, ReportFrequency::daily);
        setProgress("Daily reports · " + label, static_cast<double>(offset) / daysOfBackfill);
        const ReportStatus status = co_await syncSalesReport(ReportFrequency::daily, label, false);
        if (status == ReportStatus::unavailable) {
            co_return;
        }
    }
}

QCoro::Task<> SyncEngine::backfillYears() {
    const int thisYear = calendar_.currentYear();
    for (int year = thisYear; year >= earliestBackfillYear && !stopRequested_ && !isClosing(); --year) {
        setProgress("Yearly reports · " + std::to_string(year), std::nullopt);
        const ReportStatus status =
            co_await syncSalesReport(ReportFrequency::yearly, zeroPadded(year, 4), false);
        if (status == ReportStatus::unavailable) {
            co_return;
        }
    }
}

QCoro::Task<> SyncEngine::backfillMonths() {
    const CivilDate today = calendar_.today();
    for (int offset = 1; offset <= monthsOfBackfill && !stopRequested_ && !isClosing(); ++offset) {
        const auto day = movedByMonths(today, -offset);
        if (!day) {
            continue;
        }
        setProgress("Monthly reports", static_cast<double>(offset) / monthsOfBackfill);
        co_await syncSalesReport(ReportFrequency::monthly, reportLabel(*day, ReportFrequency::monthly),
                                 false);
    }
}

QCoro::Task<> SyncEngine::syncFinanceRange(std::string from) {
    const std::string end = nextFiscalPeriod(calendar_.currentFiscalPeriod());
    const std::vector<std::string> periods = fiscalPeriods(from, end);
    const auto count = static_cast<double>(std::max<std::size_t>(periods.size(), 1));
    double done = 0;
    for (const std::string& period : periods) {
        if (stopRequested_ || isClosing()) {
            co_return;
        }
        done += 1;
        setProgress("Finance reports · " + period, done / count);
        co_await syncFinanceReport(period, false);
    }
}

}  // namespace vantrell
