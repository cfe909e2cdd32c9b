#pragma once

#include "base/Whitespace.h"
#include "reports/ReportLines.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// A heading as columns are looked up by: trimmed, in lower case, and "_" for each "/", "-" and space, so
/// that "Sale or Return" gives "sale_or_return". Runs stay: " / " gives "___".
[[nodiscard]] std::string normalizedHeaderKey(std::string_view cell);

/// Where a report's columns stand, taken from its header line.
class ReportColumns {
  public:
    /// The index of a column that the report doesn't have.
    static constexpr std::size_t absent = std::numeric_limits<std::size_t>::max();

    /// Absent if `cells` are no header: it has at least 6 of them, and the key of the first is `marker`.
    [[nodiscard]] static std::optional<ReportColumns> fromHeader(const Cells& cells, std::string_view marker);

    /// Index of the last column with this key, or `absent`.
    [[nodiscard]] std::size_t indexOf(std::string_view key) const;
    [[nodiscard]] std::size_t columnCount() const { return columnCount_; }

  private:
    std::map<std::string, std::size_t, std::less<>> indexByKey_;
    std::size_t columnCount_ = 0;
};

/// The trimmed cell at `column`; empty if the report or this line doesn't have it.
[[nodiscard]] inline std::string_view cell(std::size_t column, const Cells& cells) {
    return column < cells.size() ? trimWhitespace(cells[column]) : std::string_view();
}

}  // namespace vantrell
