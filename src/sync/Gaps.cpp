#include "Gaps.h"

#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/FiscalWeeks.h"
#include "calendar/ReportSchedule.h"

#include <utility>
#include <vector>

namespace vantrell {
namespace {

using std::chrono::sys_days;

/// Tells which reports are open.
class OpenReports {
  public:
    OpenReports(const RunBasis& basis, std::set<std::string> asked)
        : basis_(basis), asked_(std::move(asked)) {}

    [[nodiscard]] std::vector<SalesReportRequest> days() const {
        std::vector<SalesReportRequest> open;
        for (int offset = 1; offset <= daysOfBackfill; ++offset) {
            if (const auto day = movedByDays(today_, -offset)) {
                SalesReportRequest request{ReportFrequency::daily, dayKey(*day)};
                const bool isDoubted =
                    basis_.monthDoubts.concern(request.reportDate) && !asked_.contains(request.logKey());
                if (isDoubted || isOpen(request, *day, settlingDaysOfDay)) {
                    open.push_back(std::move(request));
                }
            }
        }
        return open;
    }

    [[nodiscard]] std::vector<SalesReportRequest> months() const {
        std::vector<SalesReportRequest> open;
        for (int offset = 1; offset <= monthsOfBackfill; ++offset) {
            if (const auto day = movedByMonths(today_, -offset)) {
                const CivilDate lastDay = day->year() / day->month() / std::chrono::last;
                addIfOpen({ReportFrequency::monthly, monthKey(*day)}, lastDay, settlingDaysOfMonth, open);
            }
        }
        return open;
    }

    [[nodiscard]] std::vector<FinanceReportRequest> fiscalPeriods() const {
        std::vector<FinanceReportRequest> open;
        const CivilDate today = basis_.calendar.pacificDateAt(basis_.clock.now());
        const std::string through = nextFiscalPeriod(basis_.calendar.currentFiscalPeriod());
        for (std::string& period : vantrell::fiscalPeriods(firstBackfillPeriod, through)) {
            const auto lastDay = lastDayOfFiscalPeriod(period);
            if (lastDay && *lastDay < today) {
                addIfOpen({std::move(period)}, *lastDay, settlingDaysOfFiscalPeriod, open);
            }
        }
        return open;
    }

    [[nodiscard]] bool includeYear(const SalesReportRequest& request, int year) const {
        return isOpen(request, std::chrono::year(year) / 12 / 31, settlingDaysOfMonth);
    }

  private:
    template <typename Request>
    void addIfOpen(Request request, CivilDate lastDay, int settlingDays, std::vector<Request>& open) const {
        if (isOpen(request, lastDay, settlingDays)) {
            open.push_back(std::move(request));
        }
    }

    template <typename Request>
    [[nodiscard]] bool isOpen(const Request& request, CivilDate lastDay, int settlingDays) const {
        if (asked_.contains(request.logKey())) {
            return false;
        }
        const auto found = Request::records(basis_.store).find(request.recordKey());
        if (!found) {
            return true;
        }
        const auto& report = found->record;
        if (report.status() == ReportStatus::empty) {
            return sys_days(answeredOn(request, report.fetchedAt)) - sys_days(lastDay) <=
                   std::chrono::days(settlingDays);
        }
        // An answer without a report in it was kept as one without rows.
        return !isFinal(report.status()) || report.message == notAReport || wasStillRunning(report);
    }

    static bool wasStillRunning(const SalesReport& year) { return year.wasStillRunning(); }
    static bool wasStillRunning(const FinanceReport& /*period*/) { return false; }
    [[nodiscard]] CivilDate answeredOn(const SalesReportRequest& /*request*/, Instant fetchedAt) const {
        return basis_.calendar.dateAt(known(fetchedAt));
    }
    [[nodiscard]] CivilDate answeredOn(const FinanceReportRequest& /*request*/, Instant fetchedAt) const {
        return basis_.calendar.pacificDateAt(known(fetchedAt));
    }
    /// What lies ahead was noted before the clock was set back.
    [[nodiscard]] Instant known(Instant fetchedAt) const {
        return fetchedAt > basis_.clock.now() ? distantPast : fetchedAt;
    }

    const RunBasis& basis_;
    const std::set<std::string> asked_;
    const CivilDate today_ = basis_.calendar.today();
};

template <typename Request>
RunStep gap(const Request& request, RunProgress progress) {
    return {request, true, std::move(progress), true};
}

}  // namespace

// What each part lacks is looked up when its turn comes, from the day that it is then.
RunSteps gapSteps(RunBasis basis, std::set<std::string> asked) {
    using Part = RunProgress::Part;
    const auto days = OpenReports(basis, asked).days();
    for (std::size_t index = 0; index < days.size(); ++index) {
        RunStep step = gap(days[index], {Part::days, days[index].reportDate, share(index + 1, days.size())});
        co_yield step;
    }
    for (int year = basis.calendar.currentYear() - 1; year >= earliestBackfillYear; --year) {
        const SalesReportRequest request{ReportFrequency::yearly, zeroPadded(year, 4)};
        if (OpenReports(basis, asked).includeYear(request, year)) {
            RunStep step = gap(request, {Part::years, request.reportDate});
            co_yield step;
        }
        if (storedStatus(basis, request) == ReportStatus::unavailable) {
            break;
        }
    }
    const auto months = OpenReports(basis, asked).months();
    for (std::size_t index = 0; index < months.size(); ++index) {
        RunStep step = gap(months[index], {Part::months, {}, share(index + 1, months.size())});
        co_yield step;
    }
    const auto periods = OpenReports(basis, asked).fiscalPeriods();
    for (std::size_t index = 0; index < periods.size(); ++index) {
        const std::string& period = periods[index].fiscalPeriod;
        RunStep step = gap(periods[index], {Part::finance, period, share(index + 1, periods.size())});
        co_yield step;
    }
}

}  // namespace vantrell
