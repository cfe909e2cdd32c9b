#include "Require.h"
#include "platform/Utf8.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace vantrell {
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

bool isValid(const std::string& text) {
    return repairedUtf8(text) == text;
}

/// Every line below the header is either a row or stands in the sample, unless that is full.
template <typename Row>
void requireSample(const ParsedReport<Row>& report, const std::string& text) {
    require(report.rows.size() <= static_cast<std::size_t>(std::ranges::count(text, '\n')));
    require(report.skippedLines.size() <= 2 * text.size() && isValid(report.skippedLines));
    require(report.skippedLines.find('\t') == std::string::npos);
}

void requireSales(const std::string& text) {
    const ParsedSales sales = parseSales(text);
    requireSample(sales, text);
    for (const auto& row : sales.rows) {
        require(isReportDate(row.beginDate) && isReportDate(row.endDate));
        require(isValid(row.title) && isValid(row.sku) && isValid(row.orderType));
    }
}

void requireFinance(const std::string& text) {
    const ParsedFinance finance = parseFinance(text);
    requireSample(finance, text);
    for (const auto& row : finance.rows) {
        require(isReportDateOrNone(row.startDate) && isReportDateOrNone(row.endDate));
        require(!row.extendedPartnerShare.isZero() || row.quantity == 0 || row.partnerShare.isZero());
    }
}

}  // namespace
}  // namespace vantrell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrell;
    const std::string text = repairedUtf8(std::string(data, data + size));
    require(isValid(text));
    requireSales(text);
    requireFinance(text);
    return 0;
}
