#include "testing/Cases.h"

#include <fstream>

#include <QByteArray>
#include <QDateTime>
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

Instant instantOf(const std::string& text) {
    const auto time = QDateTime::fromString(QString::fromStdString(text), Qt::ISODateWithMs);
    return Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

std::string textOf(Instant instant) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate).toStdString();
}

}  // namespace vantrell::testing
