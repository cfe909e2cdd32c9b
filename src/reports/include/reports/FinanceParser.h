#pragma once

#include "data/FinanceRow.h"
#include "reports/ReportReader.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantrell {

using ParsedFinance = ParsedReport<ParsedFinanceRow>;

/// Reads the text of one finance report. Its sections, headings and totals are not told apart: a line whose
/// first cell is a date is a row, and every other line below the header goes to the sample.
[[nodiscard]] ParsedFinance parseFinance(std::string_view text);
/// The same, from a body as it was sent and block by block.
[[nodiscard]] std::unique_ptr<ReportReader<ParsedFinanceRow>> readFinance(std::string body);

}  // namespace vantrell
