#include "data/LineMappings.h"

#include "PackedDecimal.h"
#include "data/ReportFrequency.h"

namespace vantrell {
namespace {

// A date outside the years 1 to 9999, which only a damaged store can hold, reads as none.
Instant instant(const SqliteStatement& row, int column) {
    constexpr Instant end = std::chrono::sys_days{CivilDate{std::chrono::year{10000} / 1 / 1}};
    const std::int64_t value = row.integer(column);
    return value < lineSeconds(distantPast) || value >= lineSeconds(end)
               ? distantPast
               : Instant(std::chrono::seconds(value));
}

}  // namespace

const LineSQL LineMapping<SalesLine>::sql = {
    .selectBatches =
        "SELECT id, frequencyRaw, reportDate, firstLine, lineCount FROM sales_batch"
        " ORDER BY firstLine, lineCount",
    .insertBatch =
        "INSERT INTO sales_batch (id, frequencyRaw, reportDate, firstLine, lineCount)"
        " VALUES (?, ?, ?, ?, ?)",
    .deleteBatch = "DELETE FROM sales_batch WHERE id = ?",
    .insertLine =
        "INSERT INTO sales_line (id, beginDate, offer, units, country, endDate, version, promoCode,"
        " subscription, period, device, platforms, proceedsReason, client, orderType)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
    .selectLines =
        "SELECT beginDate, offer, units, country, endDate, version, promoCode, subscription, period,"
        " device, platforms, proceedsReason, client, orderType"
        " FROM sales_line WHERE id >= ? AND id < ? ORDER BY id",
    .selectFigures =
        "SELECT beginDate, offer, units, country"
        " FROM sales_line WHERE id >= ? AND id < ? ORDER BY id",
    .deleteLines = "DELETE FROM sales_line WHERE id >= ? AND id < ?",
    .lastLine = "SELECT max(id) FROM sales_line",
    .deleteBatchesAfter = "DELETE FROM sales_batch WHERE id > ?"};

void LineMapping<SalesLine>::write(LineWriter& writer, const SalesLine& line) {
    const SalesFigures& figures = line.figures;
    writer << figures.beginDate << figures.offer << figures.units << figures.country << line.endDate
           << line.version << line.promoCode << line.subscription << line.period << line.device
           << line.platforms << line.proceedsReason << line.client << line.orderType;
}

SalesFigures LineMapping<SalesLine>::readFigures(const SqliteStatement& row) {
    return {.beginDate = instant(row, 0),
            .offer = readID(row, 1),
            .units = row.integer(2),
            .country = readID(row, 3)};
}

SalesLine LineMapping<SalesLine>::read(const SqliteStatement& row) {
    return {.figures = readFigures(row),
            .endDate = instant(row, 4),
            .version = readID(row, 5),
            .promoCode = readID(row, 6),
            .subscription = readID(row, 7),
            .period = readID(row, 8),
            .device = readID(row, 9),
            .platforms = readID(row, 10),
            .proceedsReason = readID(row, 11),
            .client = readID(row, 12),
            .orderType = readID(row, 13)};
}

int LineMapping<SalesLine>::groupRank(std::string_view frequencyRaw) {
    const auto frequency = reportFrequency(frequencyRaw);
    return frequency ? static_cast<int>(*frequency) : static_cast<int>(ReportFrequency::yearly) + 1;
}

const LineSQL LineMapping<FinanceLine>::sql = {
    .selectBatches =
        "SELECT id, region, fiscalPeriod, firstLine, lineCount FROM finance_batch"
        " ORDER BY firstLine, lineCount",
    .insertBatch =
        "INSERT INTO finance_batch (id, region, fiscalPeriod, firstLine, lineCount)"
        " VALUES (?, ?, ?, ?, ?)",
    .deleteBatch = "DELETE FROM finance_batch WHERE id = ?",
    .insertLine =
        "INSERT INTO finance_line (id, startDate, endDate, vendorIdentifier, title, productType,"
        " quantity, partnerShare, extendedPartnerShare, partnerShareCurrency, saleOrReturn, appleID,"
        " country, promoCode, customerPrice, customerCurrency)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
    .selectLines =
        "SELECT startDate, endDate, vendorIdentifier, title, productType, quantity, partnerShare,"
        " extendedPartnerShare, partnerShareCurrency, saleOrReturn, appleID, country, promoCode,"
        " customerPrice, customerCurrency"
        " FROM finance_line WHERE id >= ? AND id < ? ORDER BY id",
    .selectFigures =
        "SELECT startDate, endDate, vendorIdentifier, title, productType, quantity,"
        " partnerShare, extendedPartnerShare, partnerShareCurrency, saleOrReturn, appleID,"
        " country, promoCode, customerPrice, customerCurrency"
        " FROM finance_line WHERE id >= ? AND id < ? ORDER BY id",
    .deleteLines = "DELETE FROM finance_line WHERE id >= ? AND id < ?",
    .lastLine = "SELECT max(id) FROM finance_line",
    .deleteBatchesAfter = "DELETE FROM finance_batch WHERE id > ?"};

void LineMapping<FinanceLine>::write(LineWriter& writer, const FinanceLine& line) {
    writer << line.startDate << line.endDate << line.vendorIdentifier << line.title << line.productType
           << line.quantity << line.partnerShare << line.extendedPartnerShare << line.partnerShareCurrency
           << line.saleOrReturn << line.appleID << line.country << line.promoCode << line.customerPrice
           << line.customerCurrency;
}

FinanceLine LineMapping<FinanceLine>::read(const SqliteStatement& row) {
    return {.startDate = instant(row, 0),
            .endDate = instant(row, 1),
            .vendorIdentifier = readID(row, 2),
            .title = readID(row, 3),
            .productType = readID(row, 4),
            .quantity = row.integer(5),
            .partnerShare = readDecimal(row, 6),
            .extendedPartnerShare = readDecimal(row, 7),
            .partnerShareCurrency = readID(row, 8),
            .saleOrReturn = readID(row, 9),
            .appleID = row.integer(10),
            .country = readID(row, 11),
            .promoCode = readID(row, 12),
            .customerPrice = readDecimal(row, 13),
            .customerCurrency = readID(row, 14)};
}

}  // namespace vantrell
