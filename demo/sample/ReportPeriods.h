#pragma once

#include "sample/Days.h"

#include <optional>
#include <string_view>

namespace vantrell::sample {

/// The kinds of report that the service publishes, each at its own pace.
enum class ReportKind { daily, weekly, monthly, yearly, finance };

/// Of a sales report, from the value of `filter[frequency]`, such as "DAILY".
[[nodiscard]] std::optional<ReportKind> salesReportKind(std::string_view frequency);

/// The days that a report covers, from the value of `filter[reportDate]`: "2026-08-14" of a daily report and,
/// as the Sunday that ends it, of a weekly one; "2026-08" of a monthly one; "2026" of a yearly one; and of a
/// finance report the fiscal period, "2026-01" being October 2025. Absent for any other text.
[[nodiscard]] std::optional<DateRange> reportDays(ReportKind kind, std::string_view reportDate);

}  // namespace vantrell::sample
