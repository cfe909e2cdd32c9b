#pragma once

#include "data/LinesFile.h"
#include "data/ModelContext.h"
#include "data/ReportFrequency.h"
#include "reports/ASCClient.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// One sales report to ask for. With FinanceReportRequest this is all in which the two kinds of reports
/// differ on their way from a request to stored rows.
struct SalesReportRequest {
    using Row = SalesRowView;
    using Line = SalesLine;
    /// What a row takes until it is stored.
    static constexpr std::size_t rowBytes = sizeof(Line);

    ReportFrequency frequency;
    std::string reportDate;

    /// What the sync log calls it, such as "sales daily 2026-08-14".
    [[nodiscard]] std::string logKey() const {
        return "sales " + std::string(lowerCaseText(frequency)) + " " + reportDate;
    }
    [[nodiscard]] SalesReport newRecord() const {
        return {.frequencyRaw = std::string(rawText(frequency)), .reportDate = reportDate};
    }
    [[nodiscard]] std::string recordKey() const { return salesReportKey(rawText(frequency), reportDate); }
    [[nodiscard]] static auto& records(auto& context) { return context.salesReports(); }

    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, std::stop_token cancel) const {
        return client.fetchSales(frequency, reportDate, std::nullopt, std::move(cancel));
    }
    /// What the body of the report says; needs nothing but the body.
    [[nodiscard]] static auto reader(std::string body) { return readSales(std::move(body)); }

    [[nodiscard]] std::int64_t lineCount(const ModelContext& context) const {
        return context.salesLines().lineCount(std::string(rawText(frequency)), reportDate);
    }
    [[nodiscard]] LinesFile keepLines(const ModelContext& context,
                                      const std::filesystem::path& folder) const {
        return keepSalesLines(context, std::string(rawText(frequency)), reportDate, folder);
    }
    void replaceLines(ModelContext& context, std::vector<Line> lines) const {
        context.replaceSalesLines(std::string(rawText(frequency)), reportDate, std::move(lines));
    }
    /// Notes what the report keeps of its lines beside their number.
    static void note(SalesReport& /*report*/, const std::vector<Line>& /*lines*/) {}
};

/// One finance report to ask for, always of the consolidated region.
struct FinanceReportRequest {
    using Row = ParsedFinanceRow;
    using Line = FinanceLine;
    /// What a row takes among the figures, which is more than until it is stored.
    static constexpr std::size_t rowBytes = 448;
    static constexpr const char* region = "ZZ";

    std::string fiscalPeriod;

    /// What the sync log calls it, such as "finance ZZ 2026-03".
    [[nodiscard]] std::string logKey() const { return "finance ZZ " + fiscalPeriod; }
    [[nodiscard]] FinanceReport newRecord() const { return {.region = region, .fiscalPeriod = fiscalPeriod}; }
    [[nodiscard]] std::string recordKey() const { return financeReportKey(region, fiscalPeriod); }
    [[nodiscard]] static auto& records(auto& context) { return context.financeReports(); }

    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, std::stop_token cancel) const {
        return client.fetchFinance(fiscalPeriod, std::move(cancel));
    }
    [[nodiscard]] static auto reader(std::string body) { return readFinance(std::move(body)); }

    [[nodiscard]] std::int64_t lineCount(const ModelContext& context) const {
        return context.financeLines().lineCount(region, fiscalPeriod);
    }
    [[nodiscard]] LinesFile keepLines(const ModelContext& context,
                                      const std::filesystem::path& folder) const {
        return keepFinanceLines(context, region, fiscalPeriod, folder);
    }
    void replaceLines(ModelContext& context, std::vector<Line> lines) const {
        context.replaceFinanceLines(region, fiscalPeriod, std::move(lines));
    }
    /// The dates that the lines span.
    static void note(FinanceReport& report, const std::vector<Line>& lines);
};

/// The exchange rates of today.
struct RatesRequest {
    [[nodiscard]] static std::string logKey() { return "rates"; }
};

}  // namespace vantrell
