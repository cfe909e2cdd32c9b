#include "BenchData.h"

#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "reports/ReportLines.h"
#include "reports/ReportText.h"
#include "sample/FinanceBody.h"
#include "sample/GzipWriter.h"
#include "sample/SalesBody.h"

#include <algorithm>
#include <limits>

namespace vantrell::bench {
namespace {

using std::chrono::days;
using std::chrono::months;

constexpr days daysOfData{365};  // of a year
constexpr int monthsOfData = 12;
constexpr int firstYear = 2023;
constexpr int lastYear = 2025;

// Orders that are alike share a line, so that lines grow less than orders do: the plan is found by trying it
// on one day in twenty.
std::uint32_t ordersPerDayFor(std::int64_t dailyLines) {
    constexpr days step{20};
    std::uint32_t least = 1;
    std::uint32_t most = 1'000'000;
    while (least < most) {
        const std::uint32_t orders = least + (most - least) / 2;
        const sample::SampleAccount account({.ordersPerDay = orders});
        std::int64_t lines = 0;
        for (auto day = today - daysOfData; day < today; day += step) {
            lines += static_cast<std::int64_t>(account.sales({day, day}).size()) * step.count();
        }
        if (lines < dailyLines) {
            least = orders + 1;
        } else {
            most = orders;
        }
    }
    return least;
}

SalesReportBody salesReport(const sample::SampleAccount& account, ReportFrequency frequency,
                            const sample::DateRange& range) {
    const std::string text = sample::salesBody(account, range);
    return {frequency, reportLabel(range.first, frequency), sample::gzip(text),
            std::ranges::count(text, '\n') - 1};
}

}  // namespace

std::int64_t BenchData::lines() const {
    std::int64_t lines = 0;
    for (const SalesReportBody& report : sales) {
        lines += report.lines;
    }
    return lines;
}

BenchData makeBenchData(std::int64_t dailyLines, int years) {
    const sample::SampleAccount account({.ordersPerDay = ordersPerDayFor(dailyLines)});
    BenchData data;
    for (auto day = today - years * daysOfData; day < today; day += days{1}) {
        data.sales.push_back(salesReport(account, ReportFrequency::daily, {day, day}));
    }
    const CivilDate now{today};
    for (int ago = monthsOfData; ago >= 1; --ago) {
        const auto range = sample::wholeMonth(now.year() / now.month() - months{ago});
        data.sales.push_back(salesReport(account, ReportFrequency::monthly, range));
        data.finance.push_back(
            {fiscalPeriod(CivilDate{range.first}), sample::gzip(sample::financeBody(account, range))});
    }
    for (int year = firstYear; year <= lastYear; ++year) {
        data.sales.push_back(salesReport(account, ReportFrequency::yearly, sample::wholeYear(year)));
    }
    return data;
}

std::string unpacked(const std::string& gzip) {
    ReportText text(gzip);
    std::string whole;
    while (const auto lines = text.nextLines()) {
        whole += *lines;
    }
    return whole;
}

std::string reportOfLines(const BenchData& data, std::int64_t lines) {
    std::string text;
    for (const SalesReportBody& report : data.sales) {
        const std::string body = unpacked(report.gzip);
        for (const std::string_view line : reportLines(body)) {
            const bool isHeading = line.starts_with("Provider\t");
            if (line.empty() || (isHeading && !text.empty())) {
                continue;
            }
            text.append(line).append("\n");
            if (!isHeading && --lines == 0) {
                return sample::gzip(text);
            }
        }
    }
    return sample::gzip(text);
}

}  // namespace vantrell::bench
