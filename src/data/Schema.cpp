#include "Schema.h"

#include "PackedDecimal.h"

#include <string>

namespace vantrell {
namespace {

constexpr const char* tables = R"sql(
CREATE TABLE text (id INTEGER PRIMARY KEY, value TEXT NOT NULL);

CREATE TABLE sales_report (
    id INTEGER PRIMARY KEY, accountID TEXT NOT NULL, frequencyRaw TEXT NOT NULL, reportDate TEXT NOT NULL,
    statusRaw TEXT NOT NULL, rowCount INTEGER NOT NULL, message TEXT NOT NULL, fetchedAt INTEGER NOT NULL);
CREATE TABLE sales_batch (
    id INTEGER PRIMARY KEY, frequencyRaw TEXT NOT NULL, reportDate TEXT NOT NULL,
    firstLine INTEGER NOT NULL, lineCount INTEGER NOT NULL);
CREATE TABLE sales_offer (
    id INTEGER PRIMARY KEY, sku, title, productType, parentSKU, proceedsPerUnit, proceedsCurrency,
    customerPrice, customerCurrency, appleID);
CREATE TABLE sales_line (
    id INTEGER PRIMARY KEY, beginDate, offer, units, country, endDate, version, promoCode, subscription,
    period, device, platforms, proceedsReason, client, orderType);

CREATE TABLE finance_report (
    id INTEGER PRIMARY KEY, accountID TEXT NOT NULL, region TEXT NOT NULL, fiscalPeriod TEXT NOT NULL,
    statusRaw TEXT NOT NULL, rowCount INTEGER NOT NULL, message TEXT NOT NULL, fetchedAt INTEGER NOT NULL,
    startDate INTEGER, endDate INTEGER);
CREATE TABLE finance_batch (
    id INTEGER PRIMARY KEY, region TEXT NOT NULL, fiscalPeriod TEXT NOT NULL,
    firstLine INTEGER NOT NULL, lineCount INTEGER NOT NULL);
CREATE TABLE finance_line (
    id INTEGER PRIMARY KEY, startDate, endDate, vendorIdentifier, title, productType, quantity, partnerShare,
    extendedPartnerShare, partnerShareCurrency, saleOrReturn, appleID, country, promoCode, customerPrice,
    customerCurrency);

CREATE TABLE rate_set (
    id INTEGER PRIMARY KEY, base TEXT NOT NULL, fetchedAt INTEGER NOT NULL, rates TEXT NOT NULL);
CREATE TABLE sync_log (
    id INTEGER PRIMARY KEY, date INTEGER NOT NULL, key TEXT NOT NULL, outcome TEXT NOT NULL,
    message TEXT NOT NULL);
)sql";

// The ways in which a property of a record lies in its column.
std::string text(const std::string& name, const std::string& table = "line") {
    return "(SELECT value FROM text WHERE text.id = " + table + "." + name + ") AS " + name;
}

std::string amount(const std::string& name, const std::string& table = "line") {
    return decimalTextSQL(table + "." + name) + " AS " + name;
}

std::string secondsDate(const std::string& name) {
    return "strftime('%Y-%m-%dT%H:%M:%SZ', line." + name + ", 'unixepoch') AS " + name;
}

// All stored instants before 1970 are whole seconds, so that cutting toward zero is right for them too.
std::string microsecondsDate(const std::string& name) {
    return "strftime('%Y-%m-%dT%H:%M:%S', " + name + " / 1000000, 'unixepoch') || printf('.%06dZ', " + name +
           " % 1000000) AS " + name;
}

std::string reportViews() {
    return "CREATE VIEW SalesReport AS SELECT accountID, frequencyRaw, reportDate, statusRaw, rowCount,"
           " message, " +
           microsecondsDate("fetchedAt") +
           " FROM sales_report;"
           "CREATE VIEW FinanceReport AS SELECT accountID, region, fiscalPeriod, statusRaw, rowCount,"
           " message, " +
           microsecondsDate("fetchedAt") + ", " + microsecondsDate("startDate") + ", " +
           microsecondsDate("endDate") +
           " FROM finance_report;"
           "CREATE VIEW RateSet AS SELECT base, " +
           microsecondsDate("fetchedAt") +
           ", rates FROM rate_set;"
           "CREATE VIEW SyncLogEntry AS SELECT " +
           microsecondsDate("date") + ", key, outcome, message FROM sync_log;";
}

std::string salesRowView() {
    return "CREATE VIEW SalesRow AS SELECT 'default' AS accountID, batch.frequencyRaw, batch.reportDate, " +
           secondsDate("beginDate") + ", " + secondsDate("endDate") + ", " + text("sku", "offer") + ", " +
           text("title", "offer") + ", " + text("version") + ", " + text("productType", "offer") + ", " +
           text("parentSKU", "offer") + ", line.units AS units, " + amount("proceedsPerUnit", "offer") +
           ", " + text("proceedsCurrency", "offer") + ", " + amount("customerPrice", "offer") + ", " +
           text("customerCurrency", "offer") + ", " + text("country") + ", offer.appleID AS appleID, " +
           text("promoCode") + ", " + text("subscription") + ", " + text("period") + ", " + text("device") +
           ", " + text("platforms") + ", " + text("proceedsReason") + ", " + text("client") + ", " +
           text("orderType") +
           " FROM sales_batch AS batch CROSS JOIN sales_line AS line"
           " ON line.id >= batch.firstLine AND line.id < batch.firstLine + batch.lineCount"
           " LEFT JOIN sales_offer AS offer ON offer.id = line.offer;";
}

std::string financeRowView() {
    return "CREATE VIEW FinanceRow AS SELECT 'default' AS accountID, batch.region, batch.fiscalPeriod, " +
           secondsDate("startDate") + ", " + secondsDate("endDate") + ", " + text("vendorIdentifier") + ", " +
           text("title") + ", " + text("productType") + ", line.quantity AS quantity, " +
           amount("partnerShare") + ", " + amount("extendedPartnerShare") + ", " +
           text("partnerShareCurrency") + ", " + text("saleOrReturn") + ", line.appleID AS appleID, " +
           text("country") + ", " + text("promoCode") + ", " + amount("customerPrice") + ", " +
           text("customerCurrency") +
           " FROM finance_batch AS batch CROSS JOIN finance_line AS line"
           " ON line.id >= batch.firstLine AND line.id < batch.firstLine + batch.lineCount;";
}

}  // namespace

void createViews(SqliteDatabase& database) {
    database.execute(reportViews() + salesRowView() + financeRowView());
}

void dropViews(SqliteDatabase& database) {
    for (const std::string view :
         {"SalesReport", "FinanceReport", "RateSet", "SyncLogEntry", "SalesRow", "FinanceRow"}) {
        database.execute("DROP VIEW IF EXISTS " + view);
    }
}

void createSchema(SqliteDatabase& database) {
    database.execute(tables);
    createViews(database);
    database.execute("PRAGMA application_id = " + std::to_string(storeApplicationID));
    database.execute("PRAGMA user_version = " + std::to_string(storeVersion));
}

}  // namespace vantrell
