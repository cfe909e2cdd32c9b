#include "testing/EarningsFixture.h"

namespace vantrell::testing {
namespace {

Instant firstDay(const std::string& label) {
    constexpr const char* rest[] = {"", "-01", "-01-01"};
    const std::size_t missing = label.size() >= 10 ? 0 : label.size() >= 7 ? 1 : 2;
    const auto date = dateFromDayKey(label + rest[missing]);
    return date ? Instant(std::chrono::sys_days(*date) + std::chrono::hours(12)) : distantPast;
}

SalesRowView row(const Line& line, Instant date) {
    SalesRowView row;
    row.beginDate = date;
    row.endDate = date;
    row.appleID = line.appleID;
    row.productType = line.productType;
    row.units = line.units;
    row.proceedsPerUnit = *Decimal::parse(line.proceeds);
    row.proceedsCurrency = line.currency;
    row.title = line.title;
    row.sku = line.sku;
    row.parentSKU = line.parentSKU;
    row.country = line.country;
    return row;
}

ParsedFinanceRow row(const Payment& payment) {
    ParsedFinanceRow row;
    row.appleID = payment.appleID;
    row.quantity = payment.quantity;
    row.extendedPartnerShare = *Decimal::parse(payment.share);
    row.partnerShareCurrency = payment.currency;
    row.saleOrReturn = payment.saleOrReturn;
    row.startDate = payment.start.empty() ? distantPast : firstDay(payment.start);
    row.endDate = payment.end.empty() ? distantPast : firstDay(payment.end);
    return row;
}

}  // namespace

void ShortReports::report(ReportFrequency frequency, const std::string& date, const std::vector<Line>& lines,
                          ReportStatus status, const std::string& fetched) {
    std::vector<SalesRowView> rows;
    rows.reserve(lines.size());
    for (const Line& line : lines) {
        rows.push_back(row(line, firstDay(date)));
    }
    parsedReport(frequency, date, rows, status, fetched.empty() ? distantPast : firstDay(fetched));
}

void ShortReports::parsedReport(ReportFrequency frequency, const std::string& date,
                                const std::vector<SalesRowView>& rows, ReportStatus status, Instant fetched) {
    const std::string raw(rawText(frequency));
    context().replaceSalesRows(raw, date, rows);
    SalesReport record;
    record.frequencyRaw = raw;
    record.reportDate = date;
    record.rowCount = static_cast<std::int64_t>(rows.size());
    record.setStatus(status);
    record.fetchedAt = fetched;
    if (const auto known = context().salesReports().find(salesReportKey(raw, date))) {
        context().salesReports().update(known->id, record);
    } else {
        context().salesReports().insert(record);
    }
}

void ShortReports::payments(const std::string& fiscalPeriod, const std::vector<Payment>& lines,
                            ReportStatus status) {
    std::vector<ParsedFinanceRow> rows;
    rows.reserve(lines.size());
    for (const Payment& line : lines) {
        rows.push_back(row(line));
    }
    parsedPayments(fiscalPeriod, rows, status);
}

void ShortReports::parsedPayments(const std::string& fiscalPeriod, const std::vector<ParsedFinanceRow>& rows,
                                  ReportStatus status) {
    context().replaceFinanceRows("ZZ", fiscalPeriod, rows);
    FinanceReport record;
    record.fiscalPeriod = fiscalPeriod;
    record.rowCount = static_cast<std::int64_t>(rows.size());
    record.setStatus(status);
    context().financeReports().insert(record);
}

void ShortReports::rates(const Rates& rates) {
    context().rateSets().insert({.fetchedAt = ManualClock().now(), .rates = rates});
}

EarningsFixture::EarningsFixture(const std::string& vfs) : context_(file_.open(vfs)), earnings_(another()) {}

EarningsFixture::EarningsFixture(const std::filesystem::path& kept)
    : file_(kept), context_(file_.open()), earnings_(another()) {}

std::unique_ptr<EarningsStore> EarningsFixture::another() {
    return std::make_unique<EarningsStore>(defaults, locale, calendar_);
}

EarningsStore& EarningsFixture::reload() {
    std::ignore = context_->save();
    earnings_->reload(*context_);
    return *earnings_;
}

std::string money(const AmountsByCurrency& amounts) {
    std::string text;
    for (const auto& [code, amount] : amounts) {
        text += (text.empty() ? "" : ", ") + code + " " + amount.text();
    }
    return text;
}

}  // namespace vantrell::testing
