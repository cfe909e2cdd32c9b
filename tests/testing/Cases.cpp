#include "testing/Cases.h"

#include <fstream>

#include <QByteArray>
#include <QList>

namespace vantrell::testing {

std::vector<std::vector<std::string>> linesOfCases(const std::filesystem::path& table, std::size_t cells) {
    std::vector<std::vector<std::string>> lines;
    std::ifstream stream(table);
    for (std::string text; std::getline(stream, text);) {
        if (text.empty() || text.starts_with("# ")) {
            continue;
        }
        auto& line = lines.emplace_back();
        for (const auto& cell : QByteArray::fromStdString(text).split('\t')) {
            line.push_back(QByteArray::fromPercentEncoding(cell).toStdString());
        }
        EXPECT_EQ(line.size(), cells) << table << ": " << text;
        line.resize(cells);
    }
    EXPECT_FALSE(lines.empty()) << table;
    return lines;
}

}  // namespace vantrell::testing
