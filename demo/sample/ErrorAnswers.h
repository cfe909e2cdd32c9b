#pragma once

#include "sample/Answer.h"
#include "sample/ReportPeriods.h"

#include <string_view>

/// What the report service says when it gives no report. Only the detail of an answer tells the cases of
/// one status apart; titles and codes are as vague as the real ones.
namespace vantrell::sample {

[[nodiscard]] Answer notAuthorized();
[[nodiscard]] Answer wrongVendor();
[[nodiscard]] Answer missingParameter(std::string_view parameter);
[[nodiscard]] Answer invalidParameter(std::string_view parameter, std::string_view value);
[[nodiscard]] Answer otherVersion(std::string_view latest);
[[nodiscard]] Answer noSales();
[[nodiscard]] Answer notYetAvailable(ReportKind kind);
[[nodiscard]] Answer noLongerAvailable();
[[nodiscard]] Answer noSuchPath();

}  // namespace vantrell::sample
