#pragma once

#include "data/RateSet.h"
#include "data/RecordTable.h"
#include "data/Reports.h"
#include "data/SyncLogEntry.h"

#include <string>

namespace vantrell {

/// The key by which a sales report is found.
[[nodiscard]] std::string salesReportKey(std::string_view frequencyRaw, std::string_view reportDate);
/// The key by which a finance report is found.
[[nodiscard]] std::string financeReportKey(std::string_view region, std::string_view fiscalPeriod);

template <>
struct RecordMapping<SalesReport> {
    static constexpr int messageColumn = 6;
    static const char* const select;
    static const char* const insert;
    static const char* const update;
    static const char* const remove;
    static const char* const removeAfter;
    static SalesReport read(const SqliteStatement& row);
    static void write(SqliteStatement& statement, RecordID id, const SalesReport& record);
    static std::string key(const SalesReport& record);
};

template <>
struct RecordMapping<FinanceReport> {
    static constexpr int messageColumn = 6;
    static const char* const select;
    static const char* const insert;
    static const char* const update;
    static const char* const remove;
    static const char* const removeAfter;
    static FinanceReport read(const SqliteStatement& row);
    static void write(SqliteStatement& statement, RecordID id, const FinanceReport& record);
    static std::string key(const FinanceReport& record);
};

template <>
struct RecordMapping<RateSet> {
    static const char* const select;
    static const char* const insert;
    static const char* const update;
    static const char* const remove;
    static const char* const removeAfter;
    static RateSet read(const SqliteStatement& row);
    static void write(SqliteStatement& statement, RecordID id, const RateSet& record);
    static std::string key(const RateSet& record);
};

template <>
struct RecordMapping<SyncLogEntry> {
    static constexpr int messageColumn = 4;
    static const char* const select;
    static const char* const insert;
    static const char* const update;
    static const char* const remove;
    static const char* const removeAfter;
    static SyncLogEntry read(const SqliteStatement& row);
    static void write(SqliteStatement& statement, RecordID id, const SyncLogEntry& record);
    static std::string key(const SyncLogEntry& record);
};

}  // namespace vantrell
