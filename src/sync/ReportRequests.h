#pragma once

#include "data/ModelContext.h"
#include "data/ReportFrequency.h"
#include "reports/ASCClient.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// One sales report to ask for. With FinanceReportRequest this is all in which the two kinds of reports
/// differ on their way from a request to stored rows.
struct SalesReportRequest {
    using Record = SalesReport;
    using Parsed = ParsedSales;
    using Line = SalesLine;

    ReportFrequency frequency;
    std::string reportDate;

    /// What the sync log calls it, such as "sales daily 2026-08-14".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] SalesReport newRecord() const;
    [[nodiscard]] static RecordTable<SalesReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, CancelToken cancel) const;

    /// What the text of the report says; needs nothing but the text.
    [[nodiscard]] static Parsed parse(std::string_view text) { return parseSales(text); }
    /// Replaces the stored rows with those of `parsed`, which are encoded as `lines`, and notes their number
    /// and the skipped lines.
    void storeRows(ModelContext& context, SalesReport& report, const Parsed& parsed,
                   std::vector<SalesLine> lines) const;
    void removeRows(ModelContext& context) const;
    [[nodiscard]] std::int64_t lineCount(ModelContext& context) const;
};

/// One finance report to ask for, always of the consolidated region.
struct FinanceReportRequest {
    using Record = FinanceReport;
    using Parsed = ParsedFinance;
    using Line = FinanceLine;

    std::string fiscalPeriod;

    /// What the sync log calls it, such as "finance ZZ 2026-03".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] FinanceReport newRecord() const;
    [[nodiscard]] static RecordTable<FinanceReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, CancelToken cancel) const;

    [[nodiscard]] static Parsed parse(std::string_view text) { return parseFinance(text); }
    /// As above, and notes the dates that the rows span.
    void storeRows(ModelContext& context, FinanceReport& report, const Parsed& parsed,
                   std::vector<FinanceLine> lines) const;
    void removeRows(ModelContext& context) const;
    [[nodiscard]] std::int64_t lineCount(ModelContext& context) const;
};

}  // namespace vantrell
