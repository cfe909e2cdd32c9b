#include "calendar/DayKey.h"
#include "sync/SyncEngine.h"

#include <utility>

// What the user asks for by hand: it overrules the stored status.

namespace vantrell {
namespace {

constexpr int longestMonth = 31;

}  // namespace

QCoro::Task<> SyncEngine::refetchDay(CivilDate day) {
    if (!beginRun()) {
        co_return;
    }
    const std::string label = reportLabel(day, ReportFrequency::daily);
    setProgress("Re-fetching " + label, std::nullopt);
    co_await syncSalesReport(ReportFrequency::daily, label, true);
    finishRun("Re-fetch");
}

QCoro::Task<> SyncEngine::refetchMonth(std::string text) {
    const auto month = parseYearMonth(text);
    if (!month) {
        lastError_ = "Use a month like 2026-08.";
        co_return;
    }
    if (!beginRun()) {
        co_return;
    }
    co_await syncSalesReport(ReportFrequency::monthly, yearMonthText(*month), true);
    co_await refetchDaysOfMonth(std::move(text), *month);
    finishRun("Re-fetch");
}

QCoro::Task<> SyncEngine::refetchDaysOfMonth(std::string text, YearMonth month) {
    const CivilDate today = calendar_.today();
    for (int day = 1; day <= longestMonth && !stopRequested_ && !isClosing(); ++day) {
        const auto date = dateFromDayKey(yearMonthText(month) + "-" + zeroPadded(day, 2));
        // Left out are what the month doesn't have, which would carry on into the next, and what isn't over.
        if (!date || unsigned{date->day()} != static_cast<unsigned>(day) || *date >= today) {
            continue;
        }
        setProgress("Re-fetching " + text, static_cast<double>(day) / longestMonth);
        co_await syncSalesReport(ReportFrequency::daily, reportLabel(*date, ReportFrequency::daily), true);
    }
}

QCoro::Task<> SyncEngine::refetchFinance(std::string fiscalPeriod) {
    if (!beginRun()) {
        co_return;
    }
    setProgress("Re-fetching finance " + fiscalPeriod, std::nullopt);
    co_await syncFinanceReport(std::move(fiscalPeriod), true);
    finishRun("Re-fetch");
}

}  // namespace vantrell
