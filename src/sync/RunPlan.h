#pragma once

#include "MonthDoubts.h"
#include "ReportRequests.h"
#include "calendar/ReportCalendar.h"
#include "calendar/YearMonth.h"
#include "sync/RunFacts.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include <qcoro/qcorogenerator.h>

namespace vantrell {

/// One thing that a run comes to.
struct RunStep {
    std::variant<SalesReportRequest, FinanceReportRequest, RatesRequest> request;
    bool isDue = true;                         ///< else it is passed over
    std::optional<RunProgress> progress = {};  ///< absent where what was told last still holds
    bool isGap = false;                        ///< can wait for a later run

    [[nodiscard]] bool isReport() const { return !std::holds_alternative<RatesRequest>(request); }
};

/// What a plan looks at.
struct RunBasis {
    const Clock& clock;
    ReportCalendar calendar;
    const ModelContext& store;
    const MonthDoubts& monthDoubts;
};

/// One step after another. Each is worked out when it is its turn, from the day that it is then and from what
/// is stored then, which also tells where a part ends. Not to be moved: this generator would be freed twice.
using RunSteps = QCoro::Generator<RunStep>;

/// What a run asks for: a function of the calendar and of what is stored, and of nothing else.
struct RunPlan {
    std::function<RunSteps(RunBasis)> steps;
};

/// The last 14 days, 2 months, last year, the next 2 fiscal periods and the rates, as far as they are due;
/// then what earlier runs left open.
[[nodiscard]] RunSteps ordinarySteps(RunBasis basis);
/// A year of days, the years, 12 months and all fiscal periods from 2024-01, as far as they aren't final, and
/// the rates.
[[nodiscard]] RunSteps backfillSteps(RunBasis basis);

// What is asked for again, whatever is stored of it.

[[nodiscard]] RunSteps dayAgain(CivilDate day, RunBasis basis);
/// The month and those of its days that are over; `asTyped` is what it is called.
[[nodiscard]] RunSteps monthAgain(YearMonth month, std::string asTyped, RunBasis basis);
[[nodiscard]] RunSteps financeAgain(std::string fiscalPeriod, RunBasis basis);

/// What is stored of a report that may have been asked for.
template <typename Request>
[[nodiscard]] ReportStatus storedStatus(const RunBasis& basis, const Request& request) {
    const auto found = Request::records(basis.store).find(request.recordKey());
    return found ? found->record.status() : ReportStatus::missing;
}

/// How far a part of a run is.
[[nodiscard]] inline double share(std::size_t done, std::size_t all) {
    return static_cast<double>(done) / static_cast<double>(all);
}

/// Whether the stored exchange rates are missing or older than a day.
[[nodiscard]] bool areRatesDue(const RunBasis& basis);

}  // namespace vantrell
