#include "testing/CsvRecords.h"

#include <gtest/gtest.h>

namespace vantrell::testing {

std::vector<std::vector<std::string>> csvRecords(std::string_view text) {
    std::vector<std::vector<std::string>> records{{""}};
    bool isQuoted = false;
    for (const char letter : text) {
        if (letter == '"') {
            isQuoted = !isQuoted;
        } else if (letter == ',' && !isQuoted) {
            records.back().emplace_back();
        } else if (letter == '\n' && !isQuoted) {
            records.push_back({""});
        } else {
            records.back().back() += letter;
        }
    }
    EXPECT_EQ(records.back(), std::vector<std::string>{""}) << "the text must end in a line feed";
    records.erase(records.begin());
    records.pop_back();
    return records;
}

}  // namespace vantrell::testing
