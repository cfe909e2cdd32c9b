#include "reports/ReportColumns.h"

#include "base/LowerCase.h"
#include "base/Whitespace.h"

namespace vantrell {
namespace {

constexpr std::size_t fewestColumns = 6;

}  // namespace

std::string normalizedHeaderKey(std::string_view cell) {
    std::string key = lowerCase(trimWhitespace(cell));
    for (char& letter : key) {
        if (letter == '/' || letter == '-' || letter == ' ') {
            letter = '_';
        }
    }
    return key;
}

std::optional<ReportColumns> ReportColumns::fromHeader(const Cells& cells, std::string_view marker) {
    if (cells.size() < fewestColumns || normalizedHeaderKey(cells.front()) != marker) {
        return std::nullopt;
    }
    ReportColumns columns;
    columns.columnCount_ = cells.size();
    for (std::size_t index = 0; index < cells.size(); ++index) {
        columns.indexByKey_.insert_or_assign(normalizedHeaderKey(cells[index]), index);
    }
    return columns;
}

std::size_t ReportColumns::indexOf(std::string_view key) const {
    const auto found = indexByKey_.find(key);
    return found == indexByKey_.end() ? absent : found->second;
}

}  // namespace vantrell
