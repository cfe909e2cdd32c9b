#include "Targets.h"
#include "base/Utf8.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"

#include <chrono>

namespace vantrell::fuzz {
namespace {

using std::chrono::year;

bool isReportDate(Instant date) {
    using std::chrono::sys_days;
    const auto day = std::chrono::floor<std::chrono::days>(date);
    return date - day == std::chrono::hours(12) && day >= sys_days(year(2001) / 1 / 1) &&
           day < sys_days(year(2200) / 1 / 4);
}

bool isReportDateOrNone(Instant date) {
    return date == distantPast || isReportDate(date);
}

void requireRow(const SalesRowView& row) {
    require(isReportDate(row.beginDate) && isReportDate(row.endDate));
    require(isUtf8(row.title) && isUtf8(row.sku) && isUtf8(row.orderType));
}

void requireRow(const ParsedFinanceRow& row) {
    require(isReportDateOrNone(row.startDate) && isReportDateOrNone(row.endDate));
    require(isUtf8(row.title));
    require(!row.extendedPartnerShare.isZero() || row.quantity == 0 || row.partnerShare.isZero());
}

/// A body gives the rows of its text, or an error.
template <typename Row, typename Parse>
void requireReport(const std::string& body, ReportReader<Row>& reader, Parse parse) {
    try {
        std::string text;
        ReportText pieces(body);
        while (const auto lines = pieces.nextLines()) {
            require(isUtf8(*lines));
            text += *lines;
        }
        const ParsedReport<Row> whole = parse(text);
        require(isUtf8(whole.skippedLines) && whole.skippedLines.size() <= 2 * mostSampleBytes);
        std::size_t count = 0;
        RowBlock<Row> block;
        for (; !block.isLast; block = reader.next()) {
            for (const Row& row : block.rows) {
                requireRow(row);
                require(count < whole.rows.size() && row == whole.rows[count++]);
            }
        }
        require(count == whole.rows.size() && block.message == whole.skippedLines);
    } catch (const ReportError&) {
        return;
    }
}

}  // namespace

void salesBody(const std::string& input) {
    requireReport(input, *readSales(input), parseSales);
}

void financeBody(const std::string& input) {
    requireReport(input, *readFinance(input), parseFinance);
}

}  // namespace vantrell::fuzz
