#include "reports/ReportLines.h"

namespace vantrell {

ReportLines::Iterator& ReportLines::Iterator::operator++() {
    if (lastTaken_) {
        atEnd_ = true;
        return *this;
    }
    const std::size_t end = rest_.find('\n');
    line_ = rest_.substr(0, end);
    if (line_.ends_with('\r')) {
        line_.remove_suffix(1);
    }
    if (end == std::string_view::npos) {
        lastTaken_ = true;
    } else {
        rest_.remove_prefix(end + 1);
    }
    return *this;
}

void splitCells(std::string_view line, std::size_t most, Cells& cells) {
    cells.clear();
    std::size_t start = 0;
    // Cells are a few bytes long, so that a search by the library costs more than it saves.
    for (std::size_t position = 0; position < line.size(); ++position) {
        if (line[position] == '\t') {
            cells.push_back(line.substr(start, position - start));
            start = position + 1;
            if (cells.size() == most) {
                return;
            }
        }
    }
    cells.push_back(line.substr(start));
}

}  // namespace vantrell
