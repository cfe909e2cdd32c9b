#pragma once

#include "PackedDecimal.h"
#include "Sqlite.h"
#include "base/Decimal.h"
#include "base/Instant.h"
#include "base/Utf8.h"
#include "data/RatesText.h"
#include "data/Reports.h"
#include "data/TextDictionary.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The ways in which a value lies in a column: `stored` and `read` move it, `shown` is the SQL by which a
/// view shows it, `damage` the SQL that is true where it can't be read, and `type` what a table of records
/// declares.
namespace vantrell::storage {

struct AsItIs {
    static std::string shown(const std::string& column) { return column; }
};

struct Number : AsItIs {
    static constexpr const char* type = " INTEGER NOT NULL";
    static std::int64_t stored(std::int64_t value) { return value; }
    static std::int64_t read(const SqliteStatement& row, int column) { return row.integer(column); }
    static std::string damage(const std::string& column) { return "typeof(" + column + ") <> 'integer'"; }
};

struct Text : AsItIs {
    static constexpr const char* type = " TEXT NOT NULL";
    static std::string_view stored(const std::string& value) { return value; }
    static std::string read(const SqliteStatement& row, int column) { return std::string(row.text(column)); }
};

/// A text that anybody may have sent.
struct ForeignText : Text {
    static constexpr bool isForeign = true;
};

/// Such a text, of which no more than `mostMessageBytes` is held.
struct Message : ForeignText {
    static std::string read(const SqliteStatement& row, int column) {
        return std::string(cutAtCodePoint(row.text(column), mostMessageBytes));
    }
    static bool isCut(const SqliteStatement& row, int column) {
        return row.text(column).size() > mostMessageBytes;
    }
};

struct RatesObject : AsItIs {
    static constexpr const char* type = " TEXT NOT NULL";
    static std::string stored(const Rates& value) { return ratesText(value); }
    static Rates read(const SqliteStatement& row, int column) { return ratesFromText(row.text(column)); }
};

struct Microseconds {
    static constexpr const char* type = " INTEGER NOT NULL";
    static std::int64_t stored(Instant value) { return value.time_since_epoch().count(); }
    static Instant read(const SqliteStatement& row, int column) {
        return Instant(std::chrono::microseconds(row.integer(column)));
    }
    // All stored instants before 1970 are whole seconds, so that cutting toward zero is right for them too.
    static std::string shown(const std::string& column) {
        return "strftime('%Y-%m-%dT%H:%M:%S', " + column + " / 1000000, 'unixepoch') || printf('.%06dZ', " +
               column + " % 1000000)";
    }
};

struct OptionalMicroseconds : Microseconds {
    static constexpr const char* type = " INTEGER";
    static std::optional<std::int64_t> stored(const std::optional<Instant>& value) {
        return value ? std::optional(Microseconds::stored(*value)) : std::nullopt;
    }
    static std::optional<Instant> read(const SqliteStatement& row, int column) {
        return row.isNull(column) ? std::nullopt : std::optional(Microseconds::read(row, column));
    }
};

/// A date of a line: whole seconds, which take a third less room than microseconds.
struct Seconds {
    static std::int64_t stored(Instant value) {
        return std::chrono::floor<std::chrono::seconds>(value).time_since_epoch().count();
    }
    // A date outside the years 1 to 9999, which only a damaged store can hold, reads as none.
    static Instant read(const SqliteStatement& row, int column) {
        constexpr Instant end = std::chrono::sys_days{CivilDate{std::chrono::year{10000} / 1 / 1}};
        const std::int64_t value = row.integer(column);
        return value < stored(distantPast) || value >= stored(end) ? distantPast
                                                                   : Instant(std::chrono::seconds(value));
    }
    static std::string shown(const std::string& column) {
        return "strftime('%Y-%m-%dT%H:%M:%SZ', " + column + ", 'unixepoch')";
    }
    static std::string damage(const std::string& column) { return Number::damage(column); }
};

/// The number of something in a dictionary. What can't be one, which only a damaged store holds, reads as 0.
struct DictionaryNumber {
    static std::int64_t stored(std::uint32_t value) { return value; }
    static std::uint32_t read(const SqliteStatement& row, int column) {
        const std::int64_t value = row.integer(column);
        return value < 0 || value > std::numeric_limits<std::uint32_t>::max()
                   ? 0
                   : static_cast<std::uint32_t>(value);
    }
};

struct TextNumber : DictionaryNumber {
    static std::string shown(const std::string& column) {
        return "(SELECT value FROM text WHERE text.id = " + column + ")";
    }
};

struct OfferNumber : DictionaryNumber, AsItIs {
    static std::string damage(const std::string& column) {
        return Number::damage(column) + " OR " + column +
               " NOT BETWEEN 0 AND (SELECT coalesce(max(id), 0) FROM sales_offer)";
    }
};

/// See PackedDecimal.h.
struct Packed {
    static std::variant<std::int64_t, std::string> stored(const Decimal& value) {
        if (const auto packed = packedDecimal(value)) {
            return *packed;
        }
        return value.text();
    }
    static Decimal read(const SqliteStatement& row, int column) { return readDecimal(row, column); }
    static std::string shown(const std::string& column) { return decimalTextSQL(column); }
    static std::string damage(const std::string& column) { return decimalDamageSQL(column); }
};

}  // namespace vantrell::storage
