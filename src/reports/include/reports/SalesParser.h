#pragma once

#include "data/SalesRow.h"
#include "reports/ReportReader.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantrell {

using ParsedSales = ParsedReport<SalesRowView>;

/// Reads the text of one sales report, of any frequency. Every line with a begin date and no fewer cells than
/// the header becomes a row; a report without a header has none. The rows refer to the text.
[[nodiscard]] ParsedSales parseSales(std::string_view text);
/// The same, from a body as it was sent and block by block.
[[nodiscard]] std::unique_ptr<ReportReader<SalesRowView>> readSales(std::string body);

}  // namespace vantrell
