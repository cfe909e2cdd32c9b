#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"
#include "data/Sqlite.h"
#include "data/TextDictionary.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vantrell {

/// A date of a line as it is stored: whole seconds, which take a third less room than microseconds.
[[nodiscard]] inline std::int64_t lineSeconds(Instant instant) {
    return std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
}

/// Inserts the lines of one report with one statement, whose first parameter is the line's number. A
/// parameter keeps its value from line to line, and lines that follow each other have much in common, so only
/// what differs is bound again.
class LineWriter {
  public:
    explicit LineWriter(SqliteStatement& insert) : insert_(insert) {}
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    // The values of a line, in the order of the parameters.
    LineWriter& operator<<(std::int64_t value) {
        Parameter& parameter = next();
        if (parameter.bound != value) {
            insert_.bind(index_, value);
            parameter.bound = value;
        }
        return *this;
    }
    LineWriter& operator<<(TextID value) { return *this << static_cast<std::int64_t>(value); }
    LineWriter& operator<<(Instant value) { return *this << lineSeconds(value); }
    LineWriter& operator<<(const Decimal& value);

    /// Throws SqliteError.
    void insert(std::int64_t number);

  private:
    struct Parameter {
        std::optional<std::int64_t> bound;
        std::string text;  // of an unusually long decimal, which must stay until the statement has run
    };
    Parameter& next() { return parameters_.at(static_cast<std::size_t>(index_++)); }

    static constexpr std::size_t mostParameters = 24;
    SqliteStatement& insert_;
    std::array<Parameter, mostParameters> parameters_;
    int index_ = 0;
};

}  // namespace vantrell
