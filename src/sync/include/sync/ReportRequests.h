#pragma once

#include "data/ModelContext.h"
#include "data/ReportFrequency.h"
#include "reports/ASCClient.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// One sales report to ask for. With FinanceReportRequest this is all in which the two kinds of reports
/// differ on their way from a request to stored rows.
struct SalesReportRequest {
    using Record = SalesReport;
    using Row = SalesRowView;
    using Line = SalesLine;
    /// What a row takes until it is stored.
    static constexpr std::size_t rowBytes = sizeof(Line);

    ReportFrequency frequency;
    std::string reportDate;

    /// What the sync log calls it, such as "sales daily 2026-08-14".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] SalesReport newRecord() const;
    [[nodiscard]] static RecordTable<SalesReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, std::stop_token cancel) const;

    /// What the body of the report says; needs nothing but the body.
    [[nodiscard]] static std::unique_ptr<ReportReader<Row>> reader(std::string body) {
        return readSales(std::move(body));
    }
    /// Replaces the stored rows with `lines`, and notes their number.
    void storeRows(ModelContext& context, SalesReport& report, std::vector<SalesLine> lines) const;
    void removeRows(ModelContext& context) const;
    [[nodiscard]] std::int64_t lineCount(ModelContext& context) const;
};

/// One finance report to ask for, always of the consolidated region.
struct FinanceReportRequest {
    using Record = FinanceReport;
    using Row = ParsedFinanceRow;
    using Line = FinanceLine;
    /// What a row takes among the figures, which is more than until it is stored.
    static constexpr std::size_t rowBytes = 448;

    std::string fiscalPeriod;

    /// What the sync log calls it, such as "finance ZZ 2026-03".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] FinanceReport newRecord() const;
    [[nodiscard]] static RecordTable<FinanceReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, std::stop_token cancel) const;

    [[nodiscard]] static std::unique_ptr<ReportReader<Row>> reader(std::string body) {
        return readFinance(std::move(body));
    }
    /// As above, and notes the dates that the rows span.
    void storeRows(ModelContext& context, FinanceReport& report, std::vector<FinanceLine> lines) const;
    void removeRows(ModelContext& context) const;
    [[nodiscard]] std::int64_t lineCount(ModelContext& context) const;
};

}  // namespace vantrell
