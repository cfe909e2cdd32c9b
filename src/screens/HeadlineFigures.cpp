#include "screens/HeadlineFigures.h"

#include "calendar/DayKey.h"

#include <algorithm>
#include <string_view>

namespace vantrell {
namespace {

constexpr std::size_t yearDigits = 4;

std::optional<std::string> mostRecentOkDay(const EarningsStore& store) {
    const auto& statuses = store.dailyStatuses();
    const auto newest = std::find_if(statuses.rbegin(), statuses.rend(),
                                     [](const auto& entry) { return entry.second == ReportStatus::ok; });
    return newest == statuses.rend() ? std::nullopt : std::optional(newest->first);
}

std::string dayShortText(const EarningsStore& store, const Locale& locale, const std::string& key) {
    if (key == store.calendar().dayKey(1)) {
        return "Yesterday";
    }
    const auto day = dateFromDayKey(key);
    return day ? locale.weekdayMonthDay(*day) : key;
}

std::optional<std::string> sinceText(const EarningsStore& store) {
    if (!store.yearlyOKLabels().empty()) {
        return "Since " + store.yearlyOKLabels().front();
    }
    if (!store.dailyStatuses().empty()) {
        return "Since " + store.dailyStatuses().begin()->first.substr(0, yearDigits);
    }
    return std::nullopt;
}

}  // namespace

std::vector<HeadlineFigure> headlineFigures(const EarningsStore& store, const Locale& locale) {
    const ReportCalendar& calendar = store.calendar();
    const AppFilter& apps = store.appFilter();
    const auto range = [&](const std::string& from, const std::string& to) {
        return store.dailyRows(from, to, apps).aggregate();
    };
    const std::string yesterday = calendar.dayKey(1);
    std::vector<HeadlineFigure> figures;
    if (const auto day = mostRecentOkDay(store)) {
        figures.push_back(
            {"Most recent day with data", dayShortText(store, locale, *day), range(*day, *day)});
    }
    figures.push_back({"Last 7 days", std::nullopt, range(calendar.dayKey(7), yesterday)});
    figures.push_back({"Last 30 days", std::nullopt, range(calendar.dayKey(30), yesterday)});
    figures.push_back(
        {"Year to date", std::nullopt, range(calendar.currentYearLabel() + "-01-01", yesterday)});
    figures.push_back({"All time", sinceText(store), store.allTimeRows(apps).aggregate()});
    return figures;
}

}  // namespace vantrell
