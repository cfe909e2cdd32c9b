#include "Figures.h"

#include "FirstFigures.h"

#include <functional>

namespace vantrell::bench {
namespace {

constexpr int repeats = 9;

struct Figure {
    const char* name;
    std::function<std::size_t(const EarningsStore&)> work;  ///< gives how much came out
};

std::vector<Figure> figures(const Locale& locale) {
    return {{"dashboard_ms", [&locale](const EarningsStore& store) { return dashboard(store, locale); }},
            {"day_table_365_ms", [](const EarningsStore& store) {
                 const ReportCalendar& calendar = store.calendar();
                 return store.dayTable(calendar.dayKey(365), calendar.dayKey(1), store.appFilter()).size();
             }}};
}

}  // namespace

std::vector<Result> measureFigures(BenchProgram& program) {
    std::vector<Result> results;
    const auto rows = static_cast<std::int64_t>(program.store().salesRows().size());
    for (const Figure& figure : figures(program.locale())) {
        std::vector<double> times;
        for (int repeat = 0; repeat < repeats; ++repeat) {
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
