#include "LoadFloor.h"

#include "Measure.h"

#include <sqlite3.h>

namespace vantrell::bench {
namespace {

// Numbers first, then texts.
constexpr const char* figureColumns =
    "SELECT units, appleID, beginDate, frequencyRaw, reportDate, sku, parentSKU, title, productType,"
    " proceedsPerUnit, proceedsCurrency, customerPrice, customerCurrency, country FROM line";
constexpr int numberColumns = 3;
constexpr int allColumns = 14;

TableSum stepThrough(sqlite3_stmt* select) {
    TableSum sum;
    std::int64_t touched = 0;
    while (sqlite3_step(select) == SQLITE_ROW) {
        ++sum.rows;
        sum.units += sqlite3_column_int64(select, 0);
        touched += sqlite3_column_int64(select, 1) & sqlite3_column_int64(select, 2);
        for (int column = numberColumns; column < allColumns; ++column) {
            touched += *sqlite3_column_text(select, column) + sqlite3_column_bytes(select, column);
        }
    }
    // Keeps the fetching of the values from being optimised away.
    static_cast<void>(*static_cast<volatile std::int64_t*>(&touched));
    return sum;
}

}  // namespace

LoadFloor stepThroughPlainTable(const std::filesystem::path& file) {
    LoadFloor floor;
    floor.milliseconds = millisecondsOf([&] {
        const PlainDatabase database = openPlain(file);
        floor.sum = stepThrough(prepare(database.get(), figureColumns).get());
    });
    return floor;
}

double plainProceeds(const std::filesystem::path& file) {
    const PlainDatabase database = openPlain(file);
    const PlainStatement sum = prepare(database.get(), "SELECT sum(units * proceedsPerUnit) FROM line");
    return sqlite3_step(sum.get()) == SQLITE_ROW ? sqlite3_column_double(sum.get(), 0) : 0;
}

}  // namespace vantrell::bench
