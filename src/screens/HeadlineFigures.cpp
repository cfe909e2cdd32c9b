#include "screens/HeadlineFigures.h"

#include "calendar/DayKey.h"
#include "figures/SalesSelection.h"
#include "screens/components/DayText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

std::optional<std::string> mostRecentOkDay(const EarningsStore& store) {
    const auto& statuses = store.snapshot()->dailyStatuses;
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& entry) { return entry.second == ReportStatus::ok; });
    return newest == statuses.rend() ? std::nullopt : std::optional(newest->first);
}

std::optional<std::string> sinceText(const EarningsStore& store) {
    if (!store.snapshot()->yearlyOKLabels.empty()) {
        return "Since " + store.snapshot()->yearlyOKLabels.front();
    }
    if (!store.snapshot()->dailyStatuses.empty()) {
        return "Since " + std::string(yearOf(store.snapshot()->dailyStatuses.begin()->first));
    }
    return std::nullopt;
}

/// Collects figures and adds them all up at once.
class FigureList {
  public:
    void add(std::string title, std::optional<std::string> subtitle, SalesSelection rows) {
        figures_.push_back({std::move(title), std::move(subtitle), {}});
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

void addNewestDay(FigureList& figures, const std::string& title, const EarningsStore& store,
                  const Locale& locale, const AppFilter& apps) {
    if (const auto day = mostRecentOkDay(store)) {
        figures.add(title, dayShortText(store.calendar(), locale, *day),
                    dailyRows(store.snapshot(), *day, *day, apps));
    }
}

void addMonthAndYear(FigureList& figures, const EarningsStore& store, const AppFilter& apps) {
    const ReportCalendar& calendar = store.calendar();
    figures.add("Last 30 days", std::nullopt, rowsUntilYesterday(store, calendar.dayKey(30), apps));
    figures.add("Year to date", std::nullopt,
                rowsUntilYesterday(store, calendar.currentYearLabel() + "-01-01", apps));
}

}  // namespace

std::vector<HeadlineFigure> headlineFigures(const EarningsStore& store, const Locale& locale) {
    const AppFilter& apps = store.appFilter();
    FigureList figures;
    addNewestDay(figures, "Most recent day with data", store, locale, apps);
    figures.add("Last 7 days", std::nullopt, rowsUntilYesterday(store, store.calendar().dayKey(7), apps));
    addMonthAndYear(figures, store, apps);
    figures.add("All time", sinceText(store), allTimeRows(store.snapshot(), apps));
    return figures.take();
}

std::vector<HeadlineFigure> appHeadlineFigures(const EarningsStore& store, const Locale& locale,
                                               std::int64_t app) {
    const AppFilter apps{std::set{app}};
    FigureList figures;
    addNewestDay(figures, "Newest day", store, locale, apps);
    addMonthAndYear(figures, store, apps);
    figures.add("All time", std::nullopt, allTimeRows(store.snapshot(), apps));
    return figures.take();
}

}  // namespace vantrell
