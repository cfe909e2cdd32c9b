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
    while (cells.size() < most) {
        const std::size_t tab = line.find('\t');
        cells.push_back(line.substr(0, tab));
        if (tab == std::string_view::npos) {
            break;
        }
        line.remove_prefix(tab + 1);
    }
}

}  // namespace vantrell
