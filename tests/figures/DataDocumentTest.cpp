#include "figures/Exports.h"
#include "testing/AccountFile.h"
#include "testing/CsvRecords.h"
#include "testing/PlainClient.h"

#include <fstream>
#include <map>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;

// The queries that docs/data.md shows: indented blocks, each ended by a semicolon.
std::vector<std::string> documentedQueries() {
    std::ifstream document(VANTRELL_DOCS "/data.md");
    std::vector<std::string> queries;
    std::string query;
    for (std::string line; std::getline(document, line);) {
        query = line.starts_with("    ") ? query + line + "\n" : "";
        if (query.ends_with(";\n")) {
            queries.push_back(query);
        }
    }
    return queries;
}

/// The answers to a query, "EUR 1.5; USD -2" by the value of the first column, or the second column as it is.
std::map<std::string, std::string> answers(const std::filesystem::path& file, const std::string& query,
                                           bool isMoney) {
    std::map<std::string, std::string> result;
    std::istringstream rows(testing::asked(file, query));
    for (std::string key, value, last;
         std::getline(rows, key, '\t') && std::getline(rows, value, '\t') && std::getline(rows, last);) {
        std::string& text = result[key];
        text += text.empty() ? "" : "; ";
        text += isMoney ? value + " " + Decimal::scaled(std::stoll(last), -6).text() : value;
    }
    return result;
}

/// One column of an export by the value of the first, without the records where it says nothing.
std::map<std::string, std::string> column(const std::string& csv, std::size_t index) {
    std::map<std::string, std::string> result;
    for (const auto& record : testing::csvRecords(csv)) {
        if (!record.at(index).empty() && record[index] != "missing") {
            result[record.front()] = record[index];
        }
    }
    return result;
}

TEST(DataDocument, ShowsQueriesThatAgreeWithTheExports) {
    EarningsFixture fixture;
    testing::AccountFile(VANTRELL_TEST_DATA "/data-document.account").storeIn(fixture);
    EarningsStore& store = fixture.reload();
    const auto queries = documentedQueries();
    ASSERT_EQ(queries.size(), 3U);
    constexpr std::size_t status = 1;
    constexpr std::size_t exactProceeds = 9;
    constexpr std::size_t exactPaid = 7;
    const std::string days = exportText(store, ExportKind::days);
    EXPECT_EQ(answers(fixture.file(), queries[0], true), column(days, exactProceeds));
    EXPECT_EQ(answers(fixture.file(), queries[1], true),
              column(exportText(store, ExportKind::payouts), exactPaid));
    EXPECT_EQ(answers(fixture.file(), queries[2], false), column(days, status));
    EXPECT_EQ(column(days, exactProceeds).at("2026-11-20"), "EUR 3.866667; JPY 240");
}

}  // namespace
}  // namespace vantrell
