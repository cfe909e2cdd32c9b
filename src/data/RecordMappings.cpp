#include "data/RecordMappings.h"

#include "base/Utf8.h"
#include "data/RatesText.h"

#include <string_view>

namespace vantrell {
namespace {

// Keys are joined with a byte that stands in no label, so that no two pairs give one key.
std::string joined(std::string_view first, std::string_view second) {
    std::string key(first);
    key += '\0';
    key += second;
    return key;
}

std::int64_t microseconds(Instant instant) {
    return instant.time_since_epoch().count();
}

Instant instant(const SqliteStatement& row, int column) {
    return Instant(std::chrono::microseconds(row.integer(column)));
}

std::optional<Instant> optionalInstant(const SqliteStatement& row, int column) {
    return row.isNull(column) ? std::nullopt : std::optional(instant(row, column));
}

void bindOptional(SqliteStatement& statement, int index, const std::optional<Instant>& value) {
    if (value) {
        statement.bind(index, microseconds(*value));
    } else {
        statement.bindNull(index);
    }
}

std::string text(const SqliteStatement& row, int column) {
    return std::string(row.text(column));
}

std::string message(const SqliteStatement& row, int column) {
    return std::string(cutAtCodePoint(row.text(column), mostMessageBytes));
}

}  // namespace

std::string salesReportKey(std::string_view frequencyRaw, std::string_view reportDate) {
    return joined(frequencyRaw, reportDate);
}

std::string financeReportKey(std::string_view region, std::string_view fiscalPeriod) {
    return joined(region, fiscalPeriod);
}

const char* const RecordMapping<SalesReport>::select =
    "SELECT id, accountID, frequencyRaw, reportDate, statusRaw, rowCount, message, fetchedAt"
    " FROM sales_report ORDER BY id";
const char* const RecordMapping<SalesReport>::insert =
    "INSERT INTO sales_report (accountID, frequencyRaw, reportDate, statusRaw, rowCount, message, fetchedAt,"
    " id) VALUES (?, ?, ?, ?, ?, ?, ?, ?)";
const char* const RecordMapping<SalesReport>::update =
    "UPDATE sales_report SET accountID = ?, frequencyRaw = ?, reportDate = ?, statusRaw = ?, rowCount = ?,"
    " message = ?, fetchedAt = ? WHERE id = ?";
const char* const RecordMapping<SalesReport>::remove = "DELETE FROM sales_report WHERE id = ?";
const char* const RecordMapping<SalesReport>::removeAfter = "DELETE FROM sales_report WHERE id > ?";

SalesReport RecordMapping<SalesReport>::read(const SqliteStatement& row) {
    return {text(row, 1),   text(row, 2),   text(row, 3),
            text(row, 4),   row.integer(5), message(row, messageColumn),
            instant(row, 7)};
}

void RecordMapping<SalesReport>::write(SqliteStatement& statement, RecordID id, const SalesReport& record) {
    statement.bind(0, std::string_view(record.accountID));
    statement.bind(1, std::string_view(record.frequencyRaw));
    statement.bind(2, std::string_view(record.reportDate));
    statement.bind(3, std::string_view(record.statusRaw));
    statement.bind(4, record.rowCount);
    statement.bind(5, std::string_view(record.message));
    statement.bind(6, microseconds(record.fetchedAt));
    statement.bind(7, id);
    statement.run();
}

std::string RecordMapping<SalesReport>::key(const SalesReport& record) {
    return salesReportKey(record.frequencyRaw, record.reportDate);
}

const char* const RecordMapping<FinanceReport>::select =
    "SELECT id, accountID, region, fiscalPeriod, statusRaw, rowCount, message, fetchedAt, startDate, endDate"
    " FROM finance_report ORDER BY id";
const char* const RecordMapping<FinanceReport>::insert =
    "INSERT INTO finance_report (accountID, region, fiscalPeriod, statusRaw, rowCount, message, fetchedAt,"
    " startDate, endDate, id) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
const char* const RecordMapping<FinanceReport>::update =
    "UPDATE finance_report SET accountID = ?, region = ?, fiscalPeriod = ?, statusRaw = ?, rowCount = ?,"
    " message = ?, fetchedAt = ?, startDate = ?, endDate = ? WHERE id = ?";
const char* const RecordMapping<FinanceReport>::remove = "DELETE FROM finance_report WHERE id = ?";
const char* const RecordMapping<FinanceReport>::removeAfter = "DELETE FROM finance_report WHERE id > ?";

FinanceReport RecordMapping<FinanceReport>::read(const SqliteStatement& row) {
    return {text(row, 1),           text(row, 2),
            text(row, 3),           text(row, 4),
            row.integer(5),         message(row, messageColumn),
            instant(row, 7),        optionalInstant(row, 8),
            optionalInstant(row, 9)};
}

void RecordMapping<FinanceReport>::write(SqliteStatement& statement, RecordID id,
                                         const FinanceReport& record) {
    statement.bind(0, std::string_view(record.accountID));
    statement.bind(1, std::string_view(record.region));
    statement.bind(2, std::string_view(record.fiscalPeriod));
    statement.bind(3, std::string_view(record.statusRaw));
    statement.bind(4, record.rowCount);
    statement.bind(5, std::string_view(record.message));
    statement.bind(6, microseconds(record.fetchedAt));
    bindOptional(statement, 7, record.startDate);
    bindOptional(statement, 8, record.endDate);
    statement.bind(9, id);
    statement.run();
}

std::string RecordMapping<FinanceReport>::key(const FinanceReport& record) {
    return financeReportKey(record.region, record.fiscalPeriod);
}

const char* const RecordMapping<RateSet>::select =
    "SELECT id, base, fetchedAt, rates FROM rate_set ORDER BY id";
const char* const RecordMapping<RateSet>::insert =
    "INSERT INTO rate_set (base, fetchedAt, rates, id) VALUES (?, ?, ?, ?)";
const char* const RecordMapping<RateSet>::update =
    "UPDATE rate_set SET base = ?, fetchedAt = ?, rates = ? WHERE id = ?";
const char* const RecordMapping<RateSet>::remove = "DELETE FROM rate_set WHERE id = ?";
const char* const RecordMapping<RateSet>::removeAfter = "DELETE FROM rate_set WHERE id > ?";

RateSet RecordMapping<RateSet>::read(const SqliteStatement& row) {
    return {text(row, 1), instant(row, 2), ratesFromText(row.text(3))};
}

void RecordMapping<RateSet>::write(SqliteStatement& statement, RecordID id, const RateSet& record) {
    const std::string rates = ratesText(record.rates);
    statement.bind(0, std::string_view(record.base));
    statement.bind(1, microseconds(record.fetchedAt));
    statement.bind(2, std::string_view(rates));
    statement.bind(3, id);
    statement.run();
}

std::string RecordMapping<RateSet>::key(const RateSet& record) {
    return record.base;
}

const char* const RecordMapping<SyncLogEntry>::select =
    "SELECT id, date, key, outcome, message FROM sync_log ORDER BY id";
const char* const RecordMapping<SyncLogEntry>::insert =
    "INSERT INTO sync_log (date, key, outcome, message, id) VALUES (?, ?, ?, ?, ?)";
const char* const RecordMapping<SyncLogEntry>::update =
    "UPDATE sync_log SET date = ?, key = ?, outcome = ?, message = ? WHERE id = ?";
const char* const RecordMapping<SyncLogEntry>::remove = "DELETE FROM sync_log WHERE id = ?";
const char* const RecordMapping<SyncLogEntry>::removeAfter = "DELETE FROM sync_log WHERE id > ?";

SyncLogEntry RecordMapping<SyncLogEntry>::read(const SqliteStatement& row) {
    return {instant(row, 1), text(row, 2), text(row, 3), message(row, messageColumn)};
}

void RecordMapping<SyncLogEntry>::write(SqliteStatement& statement, RecordID id, const SyncLogEntry& record) {
    statement.bind(0, microseconds(record.date));
    statement.bind(1, std::string_view(record.key));
    statement.bind(2, std::string_view(record.outcome));
    statement.bind(3, std::string_view(record.message));
    statement.bind(4, id);
    statement.run();
}

std::string RecordMapping<SyncLogEntry>::key(const SyncLogEntry& record) {
    return record.key;
}

}  // namespace vantrell
