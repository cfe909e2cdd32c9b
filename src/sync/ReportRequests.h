#pragma once

#include "data/ModelContext.h"
#include "data/ReportFrequency.h"
#include "reports/ASCClient.h"

#include <cstddef>
#include <string>
#include <string_view>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// One sales report to ask for. With FinanceReportRequest this is all in which the two kinds of reports
/// differ on their way from a request to stored rows.
struct SalesReportRequest {
    using Record = SalesReport;

    ReportFrequency frequency;
    std::string reportDate;

    /// What the sync log calls it, such as "sales daily 2026-08-14".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] SalesReport newRecord() const;
    [[nodiscard]] static RecordTable<SalesReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, CancelToken cancel) const;

    /// Replaces the stored rows with those of `text`, and notes their number and the skipped lines.
    void storeRows(ModelContext& context, SalesReport& report, std::string_view text) const;
    void removeRows(ModelContext& context) const;
};

/// One finance report to ask for, always of the consolidated region.
struct FinanceReportRequest {
    using Record = FinanceReport;

    std::string fiscalPeriod;

    /// What the sync log calls it, such as "finance ZZ 2026-03".
    [[nodiscard]] std::string logKey() const;
    [[nodiscard]] std::string recordKey() const;
    [[nodiscard]] FinanceReport newRecord() const;
    [[nodiscard]] static RecordTable<FinanceReport>& records(ModelContext& context);
    [[nodiscard]] QCoro::Task<ReportResponse> fetch(ASCClient& client, CancelToken cancel) const;

    /// As above, and notes the dates that the rows span.
    void storeRows(ModelContext& context, FinanceReport& report, std::string_view text) const;
    void removeRows(ModelContext& context) const;
};

}  // namespace vantrell
