#include "sync/ReportRequests.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

constexpr std::string_view consolidatedRegion = "ZZ";

void noteDates(FinanceReport& report, const std::vector<FinanceLine>& lines) {
    report.startDate.reset();
    report.endDate.reset();
    for (const FinanceLine& line : lines) {
        if (line.startDate > distantPast) {
            report.startDate = std::min(report.startDate.value_or(line.startDate), line.startDate);
        }
        report.endDate = std::max(report.endDate.value_or(line.endDate), line.endDate);
    }
}

}  // namespace

std::string SalesReportRequest::logKey() const {
    return "sales " + std::string(lowerCaseText(frequency)) + " " + reportDate;
}

std::string SalesReportRequest::recordKey() const {
    return salesReportKey(rawText(frequency), reportDate);
}

SalesReport SalesReportRequest::newRecord() const {
    SalesReport report;
    report.frequencyRaw = rawText(frequency);
    report.reportDate = reportDate;
    return report;
}

RecordTable<SalesReport>& SalesReportRequest::records(ModelContext& context) {
    return context.salesReports();
}

QCoro::Task<ReportResponse> SalesReportRequest::fetch(ASCClient& client, std::stop_token cancel) const {
    return client.fetchSales(frequency, reportDate, std::nullopt, std::move(cancel));
}

void SalesReportRequest::storeRows(ModelContext& context, SalesReport& report,
                                   std::vector<SalesLine> lines) const {
    report.rowCount = static_cast<std::int64_t>(lines.size());
    context.replaceSalesLines(report.frequencyRaw, report.reportDate, std::move(lines));
}

void SalesReportRequest::removeRows(ModelContext& context) const {
    context.replaceSalesLines(std::string(rawText(frequency)), reportDate, {});
}

std::int64_t SalesReportRequest::lineCount(ModelContext& context) const {
    return context.salesLines().lineCount(std::string(rawText(frequency)), reportDate);
}

std::string FinanceReportRequest::logKey() const {
    return "finance ZZ " + fiscalPeriod;
}

std::string FinanceReportRequest::recordKey() const {
    return financeReportKey(consolidatedRegion, fiscalPeriod);
}

FinanceReport FinanceReportRequest::newRecord() const {
    FinanceReport report;
    report.region = consolidatedRegion;
    report.fiscalPeriod = fiscalPeriod;
    return report;
}

RecordTable<FinanceReport>& FinanceReportRequest::records(ModelContext& context) {
    return context.financeReports();
}

QCoro::Task<ReportResponse> FinanceReportRequest::fetch(ASCClient& client, std::stop_token cancel) const {
    return client.fetchFinance(fiscalPeriod, std::move(cancel));
}

void FinanceReportRequest::storeRows(ModelContext& context, FinanceReport& report,
                                     std::vector<FinanceLine> lines) const {
    report.rowCount = static_cast<std::int64_t>(lines.size());
    noteDates(report, lines);
    context.replaceFinanceLines(report.region, report.fiscalPeriod, std::move(lines));
}

void FinanceReportRequest::removeRows(ModelContext& context) const {
    context.replaceFinanceLines(std::string(consolidatedRegion), fiscalPeriod, {});
}

std::int64_t FinanceReportRequest::lineCount(ModelContext& context) const {
    return context.financeLines().lineCount(std::string(consolidatedRegion), fiscalPeriod);
}

}  // namespace vantrell
