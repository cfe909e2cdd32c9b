#include "screens/HeadlineFigures.h"

#include "calendar/DayKey.h"
#include "figures/Coverage.h"
#include "figures/SalesSelection.h"
#include "screens/components/ShownText.h"
#include "screens/words/CoverageWords.h"
#include "screens/words/DayText.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <QCoreApplication>

namespace vantrell {
namespace {

class HeadlineWords {
    Q_DECLARE_TR_FUNCTIONS(HeadlineFigures)
};

std::optional<std::string> mostRecentOkDay(const EarningsStore& store) {
    const auto& statuses = store.snapshot()->dailyStatuses;
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& entry) { return entry.second == ReportStatus::ok; });
    return newest == statuses.rend() ? std::nullopt : std::optional(newest->first);
}

QString sinceText(const EarningsStore& store) {
    const auto& years = store.snapshot()->yearlyOKLabels;
    const auto& days = store.snapshot()->dailyStatuses;
    if (years.empty() && days.empty()) {
        return {};
    }
    const std::string_view firstDay = days.empty() ? years.front() : yearOf(days.begin()->first);
    const std::string_view firstReport = years.empty() ? firstDay : std::string_view(years.front());
    return HeadlineWords::tr("Since %1").arg(shownText(std::min(firstDay, firstReport)));
}

/// Collects figures and adds them all up at once.
class FigureList {
  public:
    void add(const QString& title, const QString& subtitle, SalesSelection rows) {
        figures_.push_back({title, subtitle, {}});
        rows_.push_back(std::move(rows));
    }

    [[nodiscard]] std::vector<HeadlineFigure> take() {
        auto stats = aggregates(rows_);
        for (std::size_t number = 0; number < figures_.size(); ++number) {
            figures_[number].stats = std::move(stats[number]);
        }
        return std::move(figures_);
    }

  private:
    std::vector<HeadlineFigure> figures_;
    std::vector<SalesSelection> rows_;
};

SalesSelection rowsUntilYesterday(const EarningsStore& store, const std::string& from,
                                  const AppFilter& apps) {
    return dailyRows(store.snapshot(), from, store.calendar().dayKey(1), apps);
}

/// The days from `from` to yesterday, and how many of them are known where not all are.
void addRange(FigureList& figures, const QString& title, const EarningsStore& store, const Locale& locale,
              const std::string& from, const AppFilter& apps) {
    const DayCounts known = dayCounts(*store.snapshot(), from, store.calendar().dayKey(1));
    figures.add(title, knownDaysText(locale, known), rowsUntilYesterday(store, from, apps));
}

void addNewestDay(FigureList& figures, const QString& title, const EarningsStore& store, const Locale& locale,
                  const AppFilter& apps) {
    if (const auto day = mostRecentOkDay(store)) {
        figures.add(title, dayShortText(store.calendar(), locale, *day),
                    dailyRows(store.snapshot(), *day, *day, apps));
    }
}

void addMonthAndYear(FigureList& figures, const EarningsStore& store, const Locale& locale,
                     const AppFilter& apps) {
    const ReportCalendar& calendar = store.calendar();
    addRange(figures, HeadlineWords::tr("Last 30 days"), store, locale, calendar.dayKey(30), apps);
    addRange(figures, HeadlineWords::tr("Year to date"), store, locale,
             calendar.currentYearLabel() + "-01-01", apps);
}

}  // namespace

std::vector<HeadlineFigure> headlineFigures(const EarningsStore& store, const Locale& locale) {
    const AppFilter& apps = store.appFilter();
    FigureList figures;
    addNewestDay(figures, HeadlineWords::tr("Most recent day with data"), store, locale, apps);
    addRange(figures, HeadlineWords::tr("Last 7 days"), store, locale, store.calendar().dayKey(7), apps);
    addMonthAndYear(figures, store, locale, apps);
    figures.add(HeadlineWords::tr("All time"), sinceText(store), allTimeRows(store.snapshot(), apps));
    return figures.take();
}

std::vector<HeadlineFigure> appHeadlineFigures(const EarningsStore& store, const Locale& locale,
                                               std::int64_t app) {
    const AppFilter apps{std::set{app}};
    FigureList figures;
    addNewestDay(figures, HeadlineWords::tr("Newest day"), store, locale, apps);
    addMonthAndYear(figures, store, locale, apps);
    figures.add(HeadlineWords::tr("All time"), {}, allTimeRows(store.snapshot(), apps));
    return figures.take();
}

}  // namespace vantrell
