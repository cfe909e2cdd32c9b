#include "reports/ReportTable.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

Cells cellsOf(std::string_view line, std::size_t most = mostColumns) {
    Cells cells;
    splitCells(line, most, cells);
    return cells;
}

TEST(ReportLines, EndAtLineFeedsAndLoseOneCarriageReturn) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/lines.tsv", [](const std::string& text) {
        std::string lines;
        for (const auto line : reportLines(text)) {
            lines.append(line).append("|");
        }
        return lines.substr(0, lines.size() - 1);
    });
}

TEST(SplitCells, KeepsEmptyCellsAndKnowsNoQuotes) {
    EXPECT_EQ(cellsOf(""), Cells{""});
    EXPECT_EQ(cellsOf("\ta\t\t"), (Cells{"", "a", "", ""}));
    EXPECT_EQ(cellsOf("\"a\tb\"\t c "), (Cells{"\"a", "b\"", " c "}));
    EXPECT_EQ(cellsOf("a\tb\tc", 2), (Cells{"a", "b"}));
    EXPECT_EQ(cellsOf(std::string(1'000'000, '\t')).size(), mostColumns);
}

TEST(NormalizedHeaderKey, IsTheSameForEverySpellingOfAHeading) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/headings.tsv", [](const std::string& heading) {
        return std::string(normalizedHeaderKey(heading));
    });
}

TEST(ReportColumns, AreTakenFromALineWithTheMarkerAndSixCells) {
    EXPECT_FALSE(ReportColumns::fromHeader(cellsOf("Provider\t2\t3\t4\t5"), "provider"));
    EXPECT_FALSE(ReportColumns::fromHeader(cellsOf("SKU\tProvider\t3\t4\t5\t6"), "provider"));
    const auto columns =
        ReportColumns::fromHeader(cellsOf(" PROVIDER\tSKU\tUnits\tA-B\tA/B\tTitle"), "provider");
    ASSERT_TRUE(columns);
    EXPECT_EQ(columns->columnCount(), 6U);
    EXPECT_EQ(columns->indexOf("provider"), 0U);
    EXPECT_EQ(columns->indexOf("a_b"), 4U) << "of two columns with one key the later counts";
    EXPECT_EQ(columns->indexOf("version"), ReportColumns::absent);
}

TEST(SkippedLines, StopGrowingOnce2000CharactersAreReached) {
    SkippedLines sample;
    appendSkippedLine("Total_Rows\t12\t", sample);
    appendSkippedLine("x", sample);
    EXPECT_EQ(sample.text, "Total_Rows  12  \nx");

    sample = {};
    appendSkippedLine(std::string(1'999, 'x'), sample);
    appendSkippedLine(std::string(5'000, 'y'), sample);
    appendSkippedLine("z", sample);
    EXPECT_EQ(sample.text, std::string(1'999, 'x') + "\n" + std::string(5'000, 'y'));
}

TEST(SkippedLines, TakeABoundedPartOfALine) {
    for (const std::string_view letter : {"x", "\t", "e\u0301\u0301\u0301\u0301"}) {
        SkippedLines sample;
        std::string line;
        while (line.size() < mostLineBytes) {
            line += letter;
        }
        appendSkippedLine(line, sample);
        appendSkippedLine(line, sample);
        EXPECT_LE(sample.text.size(), mostSampleBytes);
        EXPECT_TRUE(sample.full);
    }
}

TEST(SkippedLines, CountCharactersAndNotBytes) {
    SkippedLines sample;
    for (int line = 0; line < 3'000; ++line) {
        appendSkippedLine("\U0001F469\u200D\U0001F4BB", sample);
    }
    EXPECT_EQ(sample.text.size(), 1'001U * 11 + 1'000) << "a line and its line feed are two characters";
}

}  // namespace
}  // namespace vantrell
