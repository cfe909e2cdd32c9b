#include "screens/HeadlineFigures.h"

#include "calendar/DayKey.h"
#include "screens/components/DayText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vantrell {
namespace {

std::optional<std::string> mostRecentOkDay(const EarningsStore& store) {
    const auto& statuses = store.dailyStatuses();
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& entry) { return entry.second == ReportStatus::ok; });
    return newest == statuses.rend() ? std::nullopt : std::optional(newest->first);
}

std::optional<std::string> sinceText(const EarningsStore& store) {
    if (!store.yearlyOKLabels().empty()) {
        return "Since " + store.yearlyOKLabels().front();
    }
    if (!store.dailyStatuses().empty()) {
        return "Since " + std::string(yearOf(store.dailyStatuses().begin()->first));
    }
    return std::nullopt;
}

}  // namespace

std::vector<HeadlineFigure> headlineFigures(const EarningsStore& store, const Locale& locale) {
    const ReportCalendar& calendar = store.calendar();
    const AppFilter& apps = store.appFilter();
    const std::string yesterday = calendar.dayKey(1);
    std::vector<HeadlineFigure> figures;
    std::vector<SalesSelection> rows;
    const auto add = [&](std::string title, std::optional<std::string> subtitle, SalesSelection selection) {
        figures.push_back({std::move(title), std::move(subtitle), {}});
        rows.push_back(std::move(selection));
    };
    if (const auto day = mostRecentOkDay(store)) {
        add("Most recent day with data", dayShortText(store.calendar(), locale, *day),
            store.dailyRows(*day, *day, apps));
    }
    const auto untilYesterday = [&](const std::string& from) {
        return store.dailyRows(from, yesterday, apps);
    };
    add("Last 7 days", std::nullopt, untilYesterday(calendar.dayKey(7)));
    add("Last 30 days", std::nullopt, untilYesterday(calendar.dayKey(30)));
    add("Year to date", std::nullopt, untilYesterday(calendar.currentYearLabel() + "-01-01"));
    add("All time", sinceText(store), store.allTimeRows(apps));
    auto stats = aggregates(rows);
    for (std::size_t number = 0; number < figures.size(); ++number) {
        figures[number].stats = std::move(stats[number]);
    }
    return figures;
}

}  // namespace vantrell
