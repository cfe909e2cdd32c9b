#include "Figures.h"

#include "FirstFigures.h"
#include "figures/Apps.h"
#include "figures/Days.h"
#include "figures/Exports.h"
#include "figures/Payouts.h"
#include "figures/Products.h"
#include "figures/Trends.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace vantrell::bench {
namespace {

constexpr int figureRepeats = 9;

struct Figure {
    const char* name;
    std::function<std::size_t(const EarningsStore&)> work;  ///< gives how much came out
};

std::size_t dayTableOfYear(const EarningsStore& store) {
    const ReportCalendar& calendar = store.calendar();
    return dayTable(store.snapshot(), calendar.dayKey(365), calendar.dayKey(1), store.appFilter()).size();
}

std::size_t countries(const EarningsStore& store) {
    constexpr std::size_t shown = 10;
    return countryStats(store.snapshot(), store.converter(), store.appFilter(), shown).size();
}

std::size_t trendOfYear(const EarningsStore& store, const Locale& locale) {
    const ReportCalendar& calendar = store.calendar();
    return trend(store.snapshot(), store.converter(), locale, calendar.dayKey(365), calendar.dayKey(1),
                 TrendGranularity::day, store.appFilter())
        .points.size();
}

std::size_t payouts(const EarningsStore& store) {
    return financePeriods(*store.snapshot(), store.appFilter()).size() +
           appPayouts(*store.snapshot(), store.calendar()).size();
}

std::size_t exports(const EarningsStore& store) {
    std::size_t bytes = 0;
    for (const ExportKind kind : exportKinds) {
        bytes += exportText(store, kind).size();
    }
    return bytes;
}

std::vector<Figure> figures(const Locale& locale) {
    return {{"dashboard_ms", [&locale](const EarningsStore& store) { return dashboard(store, locale); }},
            {"day_table_365_ms", dayTableOfYear},
            {"apps_table_ms",
             [](const EarningsStore& store) {
                 return appTable(store.snapshot(), store.converter(), store.calendar()).size();
             }},
            {"product_windows_ms",
             [](const EarningsStore& store) {
                 return productWindows(store.snapshot(), store.converter(), store.calendar()).size();
             }},
            {"products_ms",
             [](const EarningsStore& store) {
                 return productStats(store.snapshot(), store.converter(), store.appFilter()).size();
             }},
            {"countries_ms", countries},
            {"year_matrix_ms",
             [](const EarningsStore& store) {
                 return yearMatrix(store.snapshot(), store.converter()).byApp.size();
             }},
            {"trend_365_ms", [&locale](const EarningsStore& store) { return trendOfYear(store, locale); }},
            {"payouts_ms", payouts},
            {"export_all_ms", exports}};
}

}  // namespace

std::vector<Result> measureFigures(BenchProgram& program) {
    std::vector<Result> results;
    const auto rows = static_cast<std::int64_t>(program.store().snapshot()->salesRows.size());
    for (const Figure& figure : figures(program.locale())) {
        std::vector<double> times;
        for (int repeat = 0; repeat < figureRepeats; ++repeat) {
            program.store().reload(program.context());
            times.push_back(millisecondsOf([&] {
                if (figure.work(program.store()) == 0) {
                    throw std::runtime_error(std::string(figure.name) + " gave nothing");
                }
            }));
        }
        results.push_back({figure.name, median(std::move(times)), "ms", rows});
    }
    return results;
}

}  // namespace vantrell::bench
