#include "BenchRun.h"

#include "Figures.h"
#include "FirstFigures.h"
#include "IngestFloor.h"
#include "LoadFloor.h"
#include "WindowFigures.h"
#include "calendar/DayKey.h"

#include <cmath>
#include <stdexcept>

#include <QTemporaryDir>

namespace vantrell::bench {
namespace {

using std::chrono::days;

constexpr int repeats = 5;
constexpr int ingestTurns = 3;

class BenchRun {
  public:
    BenchRun(std::int64_t dailyLines, int years)
        : dailyLines_(dailyLines),
          folder_(temporary_.path().toStdString()),
          plainFile_(folder_ / "plain.sqlite"),
          data_(makeBenchData(dailyLines, years)),
          rows_(data_.lines()),
          service_(data_) {}

    std::vector<Result> run() {
        ingest();
        firstLoad();
        figures();
        window();
        return std::move(results_);
    }

  private:
    void add(Result result) {
        print(result);
        results_.push_back(std::move(result));
    }

    [[nodiscard]] double perSecond(double milliseconds) const {
        return static_cast<double>(rows_) / milliseconds * 1000;
    }

    // In turns with its floor, since what the disk does beside changes from second to second.
    void ingest() {
        std::vector<double> times;
        std::vector<double> floors;
        for (int turn = 1; turn < ingestTurns; ++turn) {
            const QTemporaryDir scratch;
            const std::filesystem::path folder(scratch.path().toStdString());
            BenchProgram program(service_, folder);
            times.push_back(storeSales(program));
            floors.push_back(fillPlainTable(data_, folder / "plain.sqlite"));
        }
        BenchProgram program(service_, folder_);
        times.push_back(storeSales(program));
        floors.push_back(fillPlainTable(data_, plainFile_));
        add({"ingest_rows_per_second", perSecond(median(std::move(times))), "rows/s", rows_});
        add({"ingest_floor", perSecond(median(std::move(floors))), "rows/s", rows_});
        for (const FinanceReportBody& report : data_.finance) {
            program.syncFinance(report.fiscalPeriod);
        }
        program.fetchRates();
    }

    double storeSales(BenchProgram& program) {
        return millisecondsOf([&] {
            for (const SalesReportBody& report : data_.sales) {
                program.syncSales(report.frequency, report.label);
            }
        });
    }

    void firstLoad() {
        std::vector<double> loads;
        std::vector<double> floors;
        std::vector<double> figures;
        std::int64_t bytes = 0;
        for (int repeat = 0; repeat < repeats; ++repeat) {
            const FirstFigures first = measureFirstFigures(folder_);
            loads.push_back(first.loadMilliseconds);
            figures.push_back(first.figuresMilliseconds);
            bytes = first.bytes;
            const LoadFloor floor = stepThroughPlainTable(plainFile_);
            floors.push_back(floor.milliseconds);
            plainSum_ = floor.sum;
        }
        add({"first_load_ms", median(std::move(loads)), "ms", rows_});
        add({"first_load_floor", median(std::move(floors)), "ms", rows_});
        add({"first_figures_ms", median(std::move(figures)), "ms", rows_});
        add({"snapshot_bytes_per_row", static_cast<double>(bytes) / static_cast<double>(rows_), "bytes",
             rows_});
    }

    void figures() {
        BenchProgram program(service_, folder_);
        program.store().reload(program.context());
        checkFloors(program.store());
        reloads(program);
        for (Result& figure : measureFigures(program)) {
            add(std::move(figure));
        }
        storeReport(program);
    }

    void window() {
        const WindowFigures figures = measureWindow(folder_, dailyLines_);
        add({"startup_first_frame_ms", figures.firstFrame, "ms", rows_});
        add({"screen_switch_ms", figures.screenSwitch, "ms", rows_});
        add({"filter_change_ms", figures.filterChange, "ms", rows_});
        add({"open_day_ms", figures.openDay, "ms", rows_});
        add({"longest_stall_ms", figures.longestStall, "ms", rows_});
    }

    void checkFloors(const EarningsStore& store) const {
        TableSum sum;
        double proceeds = 0;
        const SalesRows& rows = store.snapshot()->salesRows;
        for (std::size_t chunk = 0; chunk < rows.chunks().size(); ++chunk) {
            for (std::size_t index = 0; index < rows.chunks()[chunk]->size(); ++index) {
                const SalesRowLite row = rows.row(chunk, index);
                ++sum.rows;
                sum.units += row.units;
                proceeds += row.amount().toDouble();
            }
        }
        constexpr double mostOfFloatingPoint = 1e-9;
        const double plain = plainProceeds(plainFile_);
        if (sum.rows != rows_ || sum != plainSum_ ||
            std::abs(plain - proceeds) > std::abs(proceeds) * mostOfFloatingPoint) {
            throw std::runtime_error("the floors did not store and read the same lines");
        }
    }

    void reloads(BenchProgram& program) {
        std::vector<double> unchanged;
        std::vector<double> oneReport;
        const SalesReportBody& report = data_.sales.at(data_.sales.size() / 2);
        for (int repeat = 0; repeat < repeats; ++repeat) {
            const auto reload = [&] { program.store().reload(program.context()); };
            unchanged.push_back(millisecondsOf(reload));
            program.syncSales(report.frequency, report.label);
            oneReport.push_back(millisecondsOf(reload));
        }
        add({"reload_unchanged_ms", median(std::move(unchanged)), "ms", rows_});
        add({"reload_one_report_ms", median(std::move(oneReport)), "ms", report.lines});
    }

    void storeReport(BenchProgram& program) {
        constexpr std::int64_t lines = 10'000;
        constexpr int beforeAllDays = 700;
        const std::string body = reportOfLines(data_, lines);
        std::vector<double> times;
        for (int repeat = 1; repeat <= repeats; ++repeat) {
            const std::string label = dayKey(today - days{beforeAllDays + repeat});
            service_.setSalesReport(ReportFrequency::daily, label, body);
            times.push_back(millisecondsOf([&] { program.syncSales(ReportFrequency::daily, label); }));
        }
        add({"store_report_ms", median(std::move(times)), "ms", lines});
    }

    const std::int64_t dailyLines_;
    QTemporaryDir temporary_;
    std::filesystem::path folder_;
    std::filesystem::path plainFile_;
    BenchData data_;
    std::int64_t rows_;
    MemoryService service_;
    TableSum plainSum_;
    std::vector<Result> results_;
};

}  // namespace

std::vector<Result> runBench(std::int64_t dailyLines, int years) {
    return BenchRun(dailyLines, years).run();
}

void runGrowth() {
    constexpr std::int64_t few = 250'000;
    constexpr std::int64_t many = 4'000'000;
    constexpr int longHistory = 6;
    const std::vector<Result> small = runBench(few);
    const std::vector<Result> large = runBench(many);
    const std::vector<Result> old = runBench(few, longHistory);
    for (std::size_t index = 0; index < small.size(); ++index) {
        const Result& before = small[index];
        if (before.unit != "ms") {
            continue;
        }
        const auto growth = [&](const Result& after) { return after.value / before.value; };
        const double rows = static_cast<double>(large[index].rows) / static_cast<double>(before.rows);
        print({"cost_growth." + before.name, growth(large[index]) / rows, "of linear", large[index].rows});
        print({"cost_growth.with_history." + before.name, growth(old[index]), "times", old[index].rows});
    }
}

}  // namespace vantrell::bench
