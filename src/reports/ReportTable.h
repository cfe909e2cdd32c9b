#pragma once

#include "reports/ReportColumns.h"
#include "reports/ReportLines.h"
#include "reports/SkippedLines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrell {

// Far above any report; a line of nothing but tabs must not cost many times its own size.
inline constexpr std::size_t mostColumns = 10'000;

// Enough for all but the largest reports, and little enough to be asked for on a text's word.
inline constexpr std::size_t mostRowsReserved = 1'000'000;

template <typename Row>
struct ParsedReport {
    std::vector<Row> rows;     ///< in the order of the file
    std::string skippedLines;  ///< a sample of the lines below the header that could not be used
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

/// Walks through a report's lines: what stands before the header leaves no trace, and a line that is shorter
/// than the header, or that `RowReader::append` refuses, goes to the sample.
template <typename RowReader>
[[nodiscard]] auto readTable(std::string_view text, std::string_view marker) {
    ParsedReport<typename RowReader::Row> report;
    SkippedLines skipped;
    std::optional<ReportColumns> columns;
    std::optional<RowReader> reader;
    Cells cells;
    report.rows.reserve(std::min(static_cast<std::size_t>(std::ranges::count(text, '\n')), mostRowsReserved));
    for (const std::string_view line : reportLines(text)) {
        if (line.empty()) {
            continue;
        }
        splitCells(line, columns ? columns->columnCount() : mostColumns, cells);
        if (!columns) {
            columns = ReportColumns::fromHeader(cells, marker);
            if (columns) {
                reader.emplace(*columns);
            }
            continue;
        }
        if (cells.size() < columns->columnCount() || !reader->append(cells, report.rows)) {
            appendSkippedLine(line, skipped);
        }
    }
    report.skippedLines = std::move(skipped.text);
    return report;
}

}  // namespace vantrell
