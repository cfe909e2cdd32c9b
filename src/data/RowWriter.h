#pragma once

#include "Columns.h"
#include "Sqlite.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantrell {

/// Inserts rows with one statement (see `insertSQL`). A parameter keeps its value from row to row, and lines
/// that follow each other have much in common, so only numbers that differ are bound again.
template <typename Columns>
class RowWriter {
  public:
    /// Both must outlive it.
    RowWriter(SqliteStatement& insert, const Columns& columns) : insert_(insert), columns_(columns) {}

    /// Throws SqliteError.
    template <typename Record>
    void write(std::int64_t number, const Record& record) {
        insert_.bind(0, number);
        forEachNumbered(columns_, [&](const auto& column, auto index) {
            bind(index + 1, parameters_[index], StorageOf<decltype(column)>::stored(record.*column.member));
        });
        insert_.run();
    }

  private:
    struct Parameter {
        std::optional<std::int64_t> bound;
        std::string text;  // which must stay until the statement has run
    };

    void bind(int index, Parameter& parameter, std::int64_t value) {
        if (parameter.bound != value) {
            insert_.bind(index, value);
            parameter.bound = value;
        }
    }
    void bind(int index, Parameter& parameter, std::string_view text) {
        insert_.bind(index, text);
        parameter.bound.reset();
    }
    void bind(int index, Parameter& parameter, std::string text) {
        parameter.text = std::move(text);
        bind(index, parameter, std::string_view(parameter.text));
    }
    void bind(int index, Parameter& parameter, std::optional<std::int64_t> value) {
        if (value) {
            bind(index, parameter, *value);
            return;
        }
        insert_.bindNull(index);
        parameter.bound.reset();
    }
    void bind(int index, Parameter& parameter, std::variant<std::int64_t, std::string> value) {
        std::visit([&](auto& either) { bind(index, parameter, std::move(either)); }, value);
    }

    SqliteStatement& insert_;
    const Columns& columns_;
    std::array<Parameter, std::tuple_size_v<Columns>> parameters_;
};

/// The values of a row, whose columns begin at `first`.
template <typename Record, typename Columns>
Record readRow(const SqliteStatement& row, const Columns& columns, int first) {
    Record record;
    forEachNumbered(columns, [&](const auto& column, auto index) {
        record.*column.member = StorageOf<decltype(column)>::read(row, first + static_cast<int>(index));
    });
    return record;
}

}  // namespace vantrell
