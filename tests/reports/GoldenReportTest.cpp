#include "base/Utf8.h"
#include "calendar/DayKey.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"
#include "testing/Golden.h"

#include <gtest/gtest.h>

// Each report under data/sales and data/finance stands beside the rows that it must give. A row is listed by
// its fields that are neither empty nor 0, and the sample of skipped lines follows the last one.

namespace vantrell {
namespace {

std::string shown(std::string_view text) {
    return std::string(text);
}

std::string shown(std::int64_t number) {
    return number == 0 ? "" : std::to_string(number);
}

std::string shown(const Decimal& amount) {
    return amount.isZero() ? "" : amount.text();
}

std::string shown(Instant instant) {
    if (instant == distantPast) {
        return "";
    }
    const auto day = std::chrono::floor<std::chrono::days>(instant);
    const bool isNoon = instant - day == std::chrono::hours(12);
    return dayKey(CivilDate(day)) + (isNoon ? "" : " and not noon");
}

template <typename Value>
std::string field(const char* name, const Value& value) {
    const std::string text = shown(value);
    return text.empty() ? text : std::string(name).append(": ").append(text).append("\n");
}

std::string fields(const SalesRowView& row) {
    return field("beginDate", row.beginDate) + field("endDate", row.endDate) + field("sku", row.sku) +
           field("title", row.title) + field("version", row.version) + field("productType", row.productType) +
           field("parentSKU", row.parentSKU) + field("units", row.units) +
           field("proceedsPerUnit", row.proceedsPerUnit) + field("proceedsCurrency", row.proceedsCurrency) +
           field("customerPrice", row.customerPrice) + field("customerCurrency", row.customerCurrency) +
           field("country", row.country) + field("appleID", row.appleID) + field("promoCode", row.promoCode) +
           field("subscription", row.subscription) + field("period", row.period) +
           field("device", row.device) + field("platforms", row.platforms) +
           field("proceedsReason", row.proceedsReason) + field("client", row.client) +
           field("orderType", row.orderType);
}

std::string fields(const ParsedFinanceRow& row) {
    return field("startDate", row.startDate) + field("endDate", row.endDate) +
           field("vendorIdentifier", row.vendorIdentifier) + field("title", row.title) +
           field("productType", row.productType) + field("quantity", row.quantity) +
           field("partnerShare", row.partnerShare) + field("extendedPartnerShare", row.extendedPartnerShare) +
           field("partnerShareCurrency", row.partnerShareCurrency) + field("saleOrReturn", row.saleOrReturn) +
           field("appleID", row.appleID) + field("country", row.country) + field("promoCode", row.promoCode) +
           field("customerPrice", row.customerPrice) + field("customerCurrency", row.customerCurrency);
}

template <typename Row>
std::string listing(const ParsedReport<Row>& report) {
    std::string text;
    for (const Row& row : report.rows) {
        text += "row\n" + fields(row);
    }
    return report.skippedLines.empty() ? text : text + "skipped\n" + report.skippedLines + "\n";
}

template <typename Row>
void expectRowsBeside(const std::string& folder, ParsedReport<Row> (*parse)(std::string_view)) {
    const auto files = testing::filesIn(std::filesystem::path(VANTRELL_TEST_DATA) / folder, ".tsv");
    EXPECT_FALSE(files.empty());
    for (const auto& report : files) {
        auto expected = report;
        const std::string text = repairedUtf8(testing::fileText(report));
        testing::expectMatchesFile(listing(parse(text)), expected.replace_extension(".rows"));
    }
}

TEST(GoldenReport, EverySalesReportGivesTheRowsThatStandBesideIt) {
    expectRowsBeside("sales", &parseSales);
}

TEST(GoldenReport, EveryFinanceReportGivesTheRowsThatStandBesideIt) {
    expectRowsBeside("finance", &parseFinance);
}

}  // namespace
}  // namespace vantrell
