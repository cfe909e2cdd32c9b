#include "data/LineMappings.h"

#include "data/PackedDecimal.h"
#include "data/ReportFrequency.h"

#include <limits>

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

// A number outside the dictionary, which only a damaged store can hold, reads as the empty text there.
TextID textID(const SqliteStatement& row, int column) {
    const std::int64_t value = row.integer(column);
    return value < 0 || value > std::numeric_limits<TextID>::max() ? 0 : static_cast<TextID>(value);
}

}  // namespace

const LineSQL LineMapping<SalesLine>::sql = {
    .selectBatches = "SELECT id, frequencyRaw, reportDate, firstLine, lineCount FROM sales_batch",
    .insertBatch =
        "INSERT INTO sales_batch (id, frequencyRaw, reportDate, firstLine, lineCount)"
        " VALUES (?, ?, ?, ?, ?)",
    .deleteBatch = "DELETE FROM sales_batch WHERE id = ?",
    .insertLine =
        "INSERT INTO sales_line (id, beginDate, sku, title, productType, parentSKU, units,"
        " proceedsPerUnit, proceedsCurrency, customerPrice, customerCurrency, country, appleID,"
        " endDate, version, promoCode, subscription, period, device, platforms, proceedsReason,"
        " client, orderType)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
    .selectLines =
        "SELECT beginDate, sku, title, productType, parentSKU, units, proceedsPerUnit,"
        " proceedsCurrency, customerPrice, customerCurrency, country, appleID, endDate, version,"
        " promoCode, subscription, period, device, platforms, proceedsReason, client, orderType"
        " FROM sales_line WHERE id >= ? AND id < ? ORDER BY id",
    .selectFigures =
        "SELECT beginDate, sku, title, productType, parentSKU, units, proceedsPerUnit,"
        " proceedsCurrency, customerPrice, customerCurrency, country, appleID"
        " FROM sales_line WHERE id >= ? AND id < ? ORDER BY id",
    .deleteLines = "DELETE FROM sales_line WHERE id >= ? AND id < ?"};

void LineMapping<SalesLine>::write(LineWriter& writer, const SalesLine& line) {
    const SalesFigures& figures = line.figures;
    writer << figures.beginDate << figures.sku << figures.title << figures.productType << figures.parentSKU
           << figures.units << figures.proceedsPerUnit << figures.proceedsCurrency << figures.customerPrice
           << figures.customerCurrency << figures.country << figures.appleID << line.endDate << line.version
           << line.promoCode << line.subscription << line.period << line.device << line.platforms
           << line.proceedsReason << line.client << line.orderType;
}

SalesFigures LineMapping<SalesLine>::readFigures(const SqliteStatement& row) {
    return {.beginDate = instant(row, 0),
            .sku = textID(row, 1),
            .title = textID(row, 2),
            .productType = textID(row, 3),
            .parentSKU = textID(row, 4),
            .units = row.integer(5),
            .proceedsPerUnit = readDecimal(row, 6),
            .proceedsCurrency = textID(row, 7),
            .customerPrice = readDecimal(row, 8),
            .customerCurrency = textID(row, 9),
            .country = textID(row, 10),
            .appleID = row.integer(11)};
}

SalesLine LineMapping<SalesLine>::read(const SqliteStatement& row) {
    return {.figures = readFigures(row),
            .endDate = instant(row, 12),
            .version = textID(row, 13),
            .promoCode = textID(row, 14),
            .subscription = textID(row, 15),
            .period = textID(row, 16),
            .device = textID(row, 17),
            .platforms = textID(row, 18),
            .proceedsReason = textID(row, 19),
            .client = textID(row, 20),
            .orderType = textID(row, 21)};
}

int LineMapping<SalesLine>::groupRank(std::string_view frequencyRaw) {
    const auto frequency = reportFrequency(frequencyRaw);
    return frequency ? static_cast<int>(*frequency) : static_cast<int>(ReportFrequency::yearly) + 1;
}

const LineSQL LineMapping<FinanceLine>::sql = {
    .selectBatches = "SELECT id, region, fiscalPeriod, firstLine, lineCount FROM finance_batch",
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
    .deleteLines = "DELETE FROM finance_line WHERE id >= ? AND id < ?"};

void LineMapping<FinanceLine>::write(LineWriter& writer, const FinanceLine& line) {
    writer << line.startDate << line.endDate << line.vendorIdentifier << line.title << line.productType
           << line.quantity << line.partnerShare << line.extendedPartnerShare << line.partnerShareCurrency
           << line.saleOrReturn << line.appleID << line.country << line.promoCode << line.customerPrice
           << line.customerCurrency;
}

FinanceLine LineMapping<FinanceLine>::read(const SqliteStatement& row) {
    return {.startDate = instant(row, 0),
            .endDate = instant(row, 1),
            .vendorIdentifier = textID(row, 2),
            .title = textID(row, 3),
            .productType = textID(row, 4),
            .quantity = row.integer(5),
            .partnerShare = readDecimal(row, 6),
            .extendedPartnerShare = readDecimal(row, 7),
            .partnerShareCurrency = textID(row, 8),
            .saleOrReturn = textID(row, 9),
            .appleID = row.integer(10),
            .country = textID(row, 11),
            .promoCode = textID(row, 12),
            .customerPrice = readDecimal(row, 13),
            .customerCurrency = textID(row, 14)};
}

}  // namespace vantrell
