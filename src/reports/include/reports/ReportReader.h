#pragma once

#include "reports/ReportTable.h"
#include "reports/ReportText.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrell {

/// Some rows of a report, in the order of the file.
template <typename Row>
struct RowBlock {
    std::vector<Row> rows;
    bool isLast = false;
    // With the last.
    bool hasHeader = false;  ///< without one the body was no report
    std::string message;     ///< what the report leaves to be told
};

/// Goes through the body of one report as it was sent, a block of rows at a time, so that neither its text
/// nor its rows are ever held as a whole.
template <typename Row>
class ReportReader {
  public:
    virtual ~ReportReader() = default;

    /// The rows may refer to the reader, until the next call. Throws ReportError.
    [[nodiscard]] virtual RowBlock<Row> next() = 0;
};

template <typename RowReader>
class BodyReader final : public ReportReader<typename RowReader::Row> {
  public:
    using Row = typename RowReader::Row;

    BodyReader(std::string body, std::string_view marker) : text_(std::move(body)), parser_(marker) {}

    [[nodiscard]] RowBlock<Row> next() override {
        if (lines_.empty()) {
            const auto more = text_.nextLines();
            if (!more) {
                return {.rows = {},
                        .isLast = true,
                        .hasHeader = parser_.hasHeader(),
                        .message = parser_.message()};
            }
            lines_ = *more;
        }
        RowBlock<Row> block;
        lines_ = parser_.read(lines_, rowsInBlock, block.rows);
        return block;
    }

  private:
    static constexpr std::size_t rowsInBlock = 16'384;
    ReportText text_;
    std::string_view lines_;
    TableParser<RowReader> parser_;
};

}  // namespace vantrell
