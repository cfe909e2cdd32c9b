#include "figures/Exports.h"
#include "testing/AccountFile.h"
#include "testing/Golden.h"
#include "testing/PlainClient.h"

#include <fstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

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

// They agree with the exports, which are kept beside them.
TEST(DataDocument, ShowsQueriesThatAnswerAsTheExportsDo) {
    testing::EarningsFixture fixture;
    testing::AccountFile(VANTRELL_TEST_DATA "/data-document.account").storeIn(fixture);
    EarningsStore& store = fixture.reload();
    std::string text = exportText(store, ExportKind::payouts) + exportDays(store, 30);
    for (const std::string& query : documentedQueries()) {
        text += "\n" + query + testing::asked(fixture.file(), query);
    }
    testing::expectMatchesFile(text, VANTRELL_TEST_DATA "/data-document.txt");
}

}  // namespace
}  // namespace vantrell
