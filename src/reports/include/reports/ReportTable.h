#pragma once

#include "reports/ReportColumns.h"
#include "reports/ReportError.h"
#include "reports/ReportLines.h"
#include "reports/SkippedLines.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace vantrell {

// Far above any report; a line of nothing but tabs must not cost many times its own size.
inline constexpr std::size_t mostColumns = 10'000;

inline constexpr std::size_t mostRowsOfReport = 2'000'000;
/// Rows and all others, but for empty ones.
inline constexpr std::size_t mostLinesOfReport = 2 * mostRowsOfReport;

template <typename Row>
struct ParsedReport {
    std::vector<Row> rows;  ///< in the order of the file
    /// What there is to tell of the report: of its counts, and a sample of the lines below the header that
    /// could not be used.
    std::string skippedLines;
    bool operator==(const ParsedReport&) const = default;
};

/// Which member of a row holds the text of the column with this key, as a string or as a view.
template <typename Row>
struct TextField {
    std::string_view key;
    decltype(Row::title) Row::*member;
};

/// Copies a row's text cells, with every column looked up once for the whole report.
template <typename Row, std::size_t Count>
class TextColumns {
  public:
    TextColumns(const ReportColumns& columns, const std::array<TextField<Row>, Count>& fields) {
        for (std::size_t index = 0; index < Count; ++index) {
            members_[index] = {columns.indexOf(fields[index].key), fields[index].member};
        }
    }

    void copy(const Cells& cells, Row& row) const {
        for (const auto& [column, member] : members_) {
            row.*member = cell(column, cells);
        }
    }

  private:
    std::array<std::pair<std::size_t, decltype(Row::title) Row::*>, Count> members_;
};

/// Walks through a report's lines, as many at a time as are asked for: what stands before the header leaves
/// no trace, and a line that is shorter than the header, or that `RowReader::append` refuses, goes to the
/// sample.
template <typename RowReader>
class TableParser {
  public:
    using Row = typename RowReader::Row;

    explicit TableParser(std::string_view marker) : marker_(marker) {}

    /// Appends rows until there are `most` of them or the text ends, and gives what is left of the text,
    /// which has to begin and end with whole lines. Throws ReportError.
    [[nodiscard]] std::string_view read(std::string_view text, std::size_t most, std::vector<Row>& rows) {
        const std::size_t before = rows.size();
        auto line = reportLines(text).begin();
        for (; line != std::default_sentinel; ++line) {
            if (!(*line).empty()) {
                readLine(*line, rows);
                if (rows.size() == most) {
                    break;
                }
            }
        }
        rowCount_ += rows.size() - before;
        if (rowCount_ > mostRowsOfReport || lineCount_ > mostLinesOfReport) {
            throw ReportError(ReportError::Reason::tooManyLines);
        }
        return line == std::default_sentinel ? std::string_view() : line.rest();
    }

    [[nodiscard]] bool hasHeader() const { return columns_.has_value(); }

    /// What is to be told of the lines so far.
    [[nodiscard]] std::string message() const {
        std::string note = reader_ ? reader_->counts().note() : std::string();
        note += note.empty() || skipped_.text.empty() ? "" : "\n";
        return note + skipped_.text;
    }

  private:
    void readLine(std::string_view line, std::vector<Row>& rows) {
        if (line.size() > mostLineBytes) {
            throw ReportError(ReportError::Reason::lineTooLong);
        }
        ++lineCount_;
        splitCells(line, columns_ ? columns_->columnCount() : mostColumns, cells_);
        if (!columns_) {
            columns_ = ReportColumns::fromHeader(cells_, marker_);
            if (columns_) {
                reader_.emplace(*columns_);
            }
            return;
        }
        if (cells_.size() < columns_->columnCount() || !reader_->append(cells_, rows)) {
            appendSkippedLine(line, skipped_);
        }
    }

    std::string_view marker_;
    std::optional<ReportColumns> columns_;
    std::optional<RowReader> reader_;
    SkippedLines skipped_;
    Cells cells_;
    std::size_t rowCount_ = 0;
    std::size_t lineCount_ = 0;
};

/// All of a text at once. Rows may refer to it.
template <typename RowReader>
[[nodiscard]] auto readTable(std::string_view text, std::string_view marker) {
    ParsedReport<typename RowReader::Row> report;
    TableParser<RowReader> parser(marker);
    // Nothing is left of a text that is read without a bound.
    std::ignore = parser.read(text, std::numeric_limits<std::size_t>::max(), report.rows);
    report.skippedLines = parser.message();
    return report;
}

}  // namespace vantrell
