#pragma once

#include "base/Instant.h"
#include "data/ReportFrequency.h"
#include "sample/SampleAccount.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrell::bench {

/// The day on which all of it happens, so that every run measures the same reports.
inline constexpr std::chrono::sys_days today = sample::dayOf(2026, 11, 22);

struct SalesReportBody {
    ReportFrequency frequency = ReportFrequency::daily;
    std::string label;  ///< report date
    std::string gzip;
    std::int64_t lines = 0;  ///< without the heading
};

struct FinanceReportBody {
    std::string fiscalPeriod;
    std::string gzip;
};

/// All reports of an invented account, as the service would hand them out, in memory.
struct BenchData {
    std::vector<SalesReportBody> sales;
    std::vector<FinanceReportBody> finance;

    [[nodiscard]] std::int64_t lines() const;
};

/// The last `years` years before `today` by day, with about `dailyLines` lines in the last of them, its
/// months, the years before, and a year of finance reports.
[[nodiscard]] BenchData makeBenchData(std::int64_t dailyLines, int years = 1);

/// The text of a report's body.
[[nodiscard]] std::string unpacked(const std::string& gzip);

/// The gzip body of one report of exactly `lines` lines, made of the first daily reports of `data`.
[[nodiscard]] std::string reportOfLines(const BenchData& data, std::int64_t lines);

}  // namespace vantrell::bench
