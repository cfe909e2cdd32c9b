#pragma once

#include "data/SalesRow.h"
#include "reports/ReportTable.h"

#include <string_view>

namespace vantrell {

using ParsedSales = ParsedReport<ParsedSalesRow>;

/// Reads the text of one sales report, of any frequency. Every line with a begin date and no fewer cells than
/// the header becomes a row; a report without a header has none.
[[nodiscard]] ParsedSales parseSales(std::string_view text);

}  // namespace vantrell
