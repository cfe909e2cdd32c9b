#include "RunPlan.h"

#include "Gaps.h"
#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/ReportSchedule.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace vantrell {
namespace {

using Part = RunProgress::Part;

constexpr auto ratesLifetime = std::chrono::hours(24);
constexpr unsigned longestMonth = 31;

template <typename Request>
RunStep unlessFinal(const RunBasis& basis, const Request& request, RunProgress progress) {
    return {request, !isFinal(storedStatus(basis, request)), std::move(progress)};
}

RunStep yearUnlessFinal(const RunBasis& basis, const SalesReportRequest& request, RunProgress progress) {
    const auto found = basis.store.salesReports().find(request.recordKey());
    const bool isRunning = found && found->record.wasStillRunning();
    return {request, isRunning || !isFinal(storedStatus(basis, request)), std::move(progress)};
}

// Steps have a name before they are handed out, since GCC 12 frees what it is handed in braces wrongly.

RunSteps recentDays(RunBasis basis) {
    const CivilDate today = basis.calendar.today();
    for (int offset = 1; offset <= daysOfSync; ++offset) {
        if (const auto day = movedByDays(today, -offset)) {
            const SalesReportRequest request{ReportFrequency::daily, dayKey(*day)};
            const bool isDue = isDayDue(storedStatus(basis, request), offset);
            RunStep step{request, isDue, RunProgress{Part::days, {}, share(offset, daysOfSync)}};
            co_yield step;
        }
    }
}

RunSteps allDays(RunBasis basis) {
    const CivilDate today = basis.calendar.today();
    for (int offset = 1; offset <= daysOfBackfill; ++offset) {
        if (const auto day = movedByDays(today, -offset)) {
            const SalesReportRequest request{ReportFrequency::daily, dayKey(*day)};
            const double done = share(offset, daysOfBackfill);
            RunStep step = unlessFinal(basis, request, {Part::days, request.reportDate, done});
            co_yield step;
            if (storedStatus(basis, request) == ReportStatus::unavailable) {
                co_return;
            }
        }
    }
}

RunSteps months(RunBasis basis, int count, bool tellsShare) {
    const CivilDate today = basis.calendar.today();
    for (int offset = 1; offset <= count; ++offset) {
        if (const auto day = movedByMonths(today, -offset)) {
            const auto done = tellsShare ? std::optional(share(offset, count)) : std::nullopt;
            const SalesReportRequest request{ReportFrequency::monthly, monthKey(*day)};
            RunStep step = unlessFinal(basis, request, {Part::months, {}, done});
            co_yield step;
        }
    }
}

RunSteps lastYear(RunBasis basis) {
    const int year = basis.calendar.currentYear() - yearsOfSync;
    RunStep step = yearUnlessFinal(basis, SalesReportRequest{ReportFrequency::yearly, zeroPadded(year, 4)},
                                   {Part::years});
    co_yield step;
}

RunSteps allYears(RunBasis basis) {
    for (int year = basis.calendar.currentYear(); year >= earliestBackfillYear; --year) {
        const SalesReportRequest request{ReportFrequency::yearly, zeroPadded(year, 4)};
        RunStep step = yearUnlessFinal(basis, request, {Part::years, request.reportDate});
        co_yield step;
        if (storedStatus(basis, request) == ReportStatus::unavailable) {
            co_return;
        }
    }
}

RunSteps nextFinancePeriods(RunBasis basis) {
    std::string period;
    for (const auto& [id, report] : basis.store.financeReports().all()) {
        if (report.status() == ReportStatus::ok) {
            period = std::max(period, report.fiscalPeriod);
        }
    }
    for (int number = 0; number < financePeriodsOfSync; ++number) {
        period = nextFiscalPeriod(period.empty() ? financeSeed : period);
        RunStep step{FinanceReportRequest{period}, true, RunProgress{Part::finance, period}};
        co_yield step;
    }
}

RunSteps allFinancePeriods(RunBasis basis) {
    const auto periods =
        fiscalPeriods(firstBackfillPeriod, nextFiscalPeriod(basis.calendar.currentFiscalPeriod()));
    for (std::size_t index = 0; index < periods.size(); ++index) {
        RunStep step = unlessFinal(basis, FinanceReportRequest{periods[index]},
                                   {Part::finance, periods[index], share(index + 1, periods.size())});
        co_yield step;
    }
}

RunSteps rates(RunBasis basis, bool force) {
    RunStep step{RatesRequest{}, force || areRatesDue(basis)};
    co_yield step;
}

RunSteps inTurn(RunBasis basis, std::vector<RunPlan> parts) {
    for (const RunPlan& part : parts) {
        RunSteps steps = part.steps(basis);
        for (RunStep& step : steps) {
            co_yield step;
        }
    }
}

}  // namespace

RunSteps ordinarySteps(RunBasis basis) {
    std::set<std::string> asked;
    RunSteps usual = inTurn(basis, {{recentDays},
                                    {[](RunBasis now) { return months(now, monthsOfSync, false); }},
                                    {lastYear},
                                    {nextFinancePeriods},
                                    {[](RunBasis now) { return rates(now, false); }}});
    for (RunStep& step : usual) {
        if (step.isDue) {
            asked.insert(std::visit([](const auto& request) { return request.logKey(); }, step.request));
        }
        co_yield step;
    }
    RunSteps gaps = gapSteps(basis, std::move(asked));
    for (RunStep& step : gaps) {
        co_yield step;
    }
}

RunSteps backfillSteps(RunBasis basis) {
    return inTurn(basis, {{allDays},
                          {allYears},
                          {[](RunBasis now) { return months(now, monthsOfBackfill, true); }},
                          {allFinancePeriods},
                          {[](RunBasis now) { return rates(now, true); }}});
}

RunSteps dayAgain(CivilDate day, RunBasis /*basis*/) {
    const std::string label = dayKey(day);
    RunStep step{SalesReportRequest{ReportFrequency::daily, label}, true, RunProgress{Part::refetch, label}};
    co_yield step;
}

RunSteps monthAgain(YearMonth month, std::string asTyped, RunBasis basis) {
    RunStep whole{SalesReportRequest{ReportFrequency::monthly, yearMonthText(month)}};
    co_yield whole;
    const CivilDate today = basis.calendar.today();
    for (unsigned day = 1; day <= longestMonth; ++day) {
        const auto date = dateFromDayKey(yearMonthText(month) + "-" + zeroPadded(day, 2));
        // Left out are what the month doesn't have, which would carry on into the next, and what isn't over.
        if (date && unsigned{date->day()} == day && *date < today) {
            RunStep step{SalesReportRequest{ReportFrequency::daily, dayKey(*date)}, true,
                         RunProgress{Part::refetch, asTyped, share(day, longestMonth)}};
            co_yield step;
        }
    }
}

RunSteps financeAgain(std::string fiscalPeriod, RunBasis /*basis*/) {
    RunStep step{FinanceReportRequest{fiscalPeriod}, true, RunProgress{Part::financeRefetch, fiscalPeriod}};
    co_yield step;
}

bool areRatesDue(const RunBasis& basis) {
    const auto& sets = basis.store.rateSets().all();
    if (sets.empty()) {
        return true;
    }
    // What lies ahead was noted before the clock was set back.
    const auto age = basis.clock.now() - sets.begin()->second.fetchedAt;
    return age < age.zero() || age >= ratesLifetime;
}

}  // namespace vantrell
