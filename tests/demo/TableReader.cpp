#include "TableReader.h"

#include <algorithm>
#include <cstdlib>

namespace vantrell::testing {

namespace {

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (std::size_t begin = 0; begin <= text.size();) {
        const auto end = std::min(text.find(separator, begin), text.size());
        pieces.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return pieces;
}

}  // namespace

TableReader::TableReader(std::string_view body) {
    for (auto& text : split(body, '\n')) {
        auto line = split(text, '\t');
        if (columns_.empty()) {
            for (std::size_t index = 0; index < line.size(); ++index) {
                columns_.emplace(line[index], index);
            }
        } else if (line.size() == columns_.size()) {
            lines_.push_back(std::move(line));
        }
    }
}

const std::string& TableReader::raw(const Line& line, std::string_view heading) const {
    return line.at(columns_.find(heading)->second);
}

std::string TableReader::cell(const Line& line, std::string_view heading) const {
    const auto& text = raw(line, heading);
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::int64_t TableReader::number(const Line& line, std::string_view heading) const {
    return std::strtoll(cell(line, heading).c_str(), nullptr, 10);
}

std::int64_t TableReader::hundredths(const Line& line, std::string_view heading) const {
    const auto amount = cell(line, heading);
    const auto point = std::min(amount.find('.'), amount.size());
    const auto digits = amount.substr(0, point);
    auto fraction = amount.substr(std::min(point + 1, amount.size()));
    fraction.resize(2, '0');
    return std::strtoll((digits + fraction).c_str(), nullptr, 10);
}

}  // namespace vantrell::testing
