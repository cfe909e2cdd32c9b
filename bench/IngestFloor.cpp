#include "IngestFloor.h"

#include "Measure.h"

#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include <sqlite3.h>

namespace vantrell::bench {
namespace {

constexpr const char* tables =
    "CREATE TABLE report (frequencyRaw, reportDate, firstLine INTEGER, lineCount INTEGER);"
    "CREATE TABLE line (id INTEGER PRIMARY KEY, accountID, frequencyRaw, reportDate, beginDate, endDate, sku,"
    " title, version, productType, parentSKU, units, proceedsPerUnit, proceedsCurrency, customerPrice,"
    " customerCurrency, country, appleID, promoCode, subscription, period, device, platforms,"
    " proceedsReason, client, orderType)";

constexpr std::size_t columnCount = 28;
using Line = std::array<std::string_view, columnCount>;

constexpr std::size_t unitsColumn = 7;
constexpr std::size_t beginColumn = 9;
constexpr std::size_t endColumn = 10;
constexpr std::size_t appleIDColumn = 14;

// The columns of the body whose text is stored, each with its parameter.
struct TextColumn {
    std::size_t column;
    int parameter;
};
constexpr std::array<TextColumn, 18> textColumns{{{2, 7},
                                                  {4, 8},
                                                  {5, 9},
                                                  {6, 10},
                                                  {17, 11},
                                                  {8, 13},
                                                  {13, 14},
                                                  {15, 15},
                                                  {11, 16},
                                                  {12, 17},
                                                  {16, 19},
                                                  {18, 20},
                                                  {19, 21},
                                                  {22, 22},
                                                  {23, 23},
                                                  {24, 24},
                                                  {26, 25},
                                                  {27, 26}}};

std::string_view trimmed(const char* begin, const char* end) {
    while (begin < end && *begin == ' ') {
        ++begin;
    }
    while (begin < end && end[-1] == ' ') {
        --end;
    }
    return {begin, static_cast<std::size_t>(end - begin)};
}

/// The start of the next line.
const char* split(const char* at, const char* end, Line& line) {
    std::size_t column = 0;
    const char* start = at;
    for (; at < end && *at != '\n'; ++at) {
        if (*at == '\t') {
            line[column++] = trimmed(start, at);
            start = at + 1;
        }
    }
    line[column] = trimmed(start, at);
    return at + 1;
}

std::int64_t number(std::string_view text) {
    std::int64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// Noon of a day such as "08/14/2026", in seconds.
std::int64_t noon(std::string_view text) {
    const auto day = sample::dayOf(static_cast<int>(number(text.substr(6, 4))),
                                   static_cast<unsigned>(number(text.substr(0, 2))),
                                   static_cast<unsigned>(number(text.substr(3, 2))));
    return std::chrono::seconds(day.time_since_epoch() + std::chrono::hours{12}).count();
}

void bindText(sqlite3_stmt* statement, int parameter, std::string_view text) {
    sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void runOnce(sqlite3_stmt* statement) {
    if (sqlite3_step(statement) != SQLITE_DONE) {
        throw std::runtime_error("a line could not be inserted");
    }
    sqlite3_reset(statement);
}

void insertLine(sqlite3_stmt* insert, std::int64_t id, const Line& line) {
    sqlite3_bind_int64(insert, 1, id);
    sqlite3_bind_int64(insert, 5, noon(line[beginColumn]));
    sqlite3_bind_int64(insert, 6, noon(line[endColumn]));
    sqlite3_bind_int64(insert, 12, number(line[unitsColumn]));
    sqlite3_bind_int64(insert, 18, number(line[appleIDColumn]));
    for (const auto& [column, parameter] : textColumns) {
        bindText(insert, parameter, line[column]);
    }
    runOnce(insert);
}

/// The number of the line after the report's last.
std::int64_t insertLines(sqlite3_stmt* insert, const SalesReportBody& report, std::string_view text,
                         std::int64_t id) {
    bindText(insert, 2, "default");
    bindText(insert, 3, rawText(report.frequency));
    bindText(insert, 4, report.label);
    Line line;
    const char* const end = text.data() + text.size();
    const char* at = split(text.data(), end, line);
    while (at < end) {
        at = split(at, end, line);
        insertLine(insert, id++, line);
    }
    return id;
}

}  // namespace

double fillPlainTable(const BenchData& data, const std::filesystem::path& file) {
    const PlainDatabase database = openPlain(file);
    execute(database.get(), tables);
    const PlainStatement line = prepare(
        database.get(), "INSERT INTO line VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    const PlainStatement range = prepare(database.get(), "INSERT INTO report VALUES (?,?,?,?)");
    double milliseconds = 0;
    std::int64_t next = 1;
    for (const SalesReportBody& report : data.sales) {
        const std::string text = unpacked(report.gzip);
        milliseconds += millisecondsOf([&] {
            execute(database.get(), "BEGIN IMMEDIATE");
            const std::int64_t first = next;
            next = insertLines(line.get(), report, text, first);
            bindText(range.get(), 1, rawText(report.frequency));
            bindText(range.get(), 2, report.label);
            sqlite3_bind_int64(range.get(), 3, first);
            sqlite3_bind_int64(range.get(), 4, next - first);
            runOnce(range.get());
            execute(database.get(), "COMMIT");
        });
    }
    return milliseconds;
}

}  // namespace vantrell::bench
