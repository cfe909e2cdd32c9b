#include "ReportValues.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

using testing::expectCases;
using Text = const std::string&;

const std::string tables = VANTRELL_TEST_DATA "/values/";

TEST(ReportDate, IsNoonUtcOfMonthDayYearAndAnythingElseIsNone) {
    expectCases<1>(tables + "dates.tsv", [](Text text) {
        const auto date = parseReportDate(text);
        return date ? testing::textOf(*date) : "none";
    });
}

TEST(ReportCount, ReadsCountsWithoutTheirFractionsAndAnythingElseAsZero) {
    expectCases<1>(tables + "counts.tsv", [](Text text) {
        const auto count = parseReportCount(text);
        return std::to_string(count.value) + (count.fits ? "" : " at most");
    });
}

TEST(ReportDecimal, IsExactAndKnowsOnlyThePoint) {
    expectCases<1>(tables + "decimals.tsv", [](Text text) { return parseReportDecimal(text).text(); });
}

TEST(AppleIdentifier, IsDigitsOnly) {
    expectCases<1>(tables + "identifiers.tsv",
                   [](Text text) { return std::to_string(parseAppleIdentifier(text)); });
}

}  // namespace
}  // namespace vantrell
