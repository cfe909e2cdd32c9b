#pragma once

#include <optional>
#include <string_view>

namespace vantrell {

/// How long a stretch one sales report covers, in the order in which stored rows come.
enum class ReportFrequency { daily, weekly, monthly, yearly };

/// The service's own filter value, which is also what is stored: "DAILY", "WEEKLY", "MONTHLY", "YEARLY".
[[nodiscard]] std::string_view rawText(ReportFrequency frequency);

/// Absent for a text that is no frequency.
[[nodiscard]] std::optional<ReportFrequency> reportFrequency(std::string_view rawText);

/// As it stands in the sync log: "daily", "weekly", "monthly", "yearly".
[[nodiscard]] std::string_view lowerCaseText(ReportFrequency frequency);

}  // namespace vantrell
