#include "reports/ReportTable.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

Cells cellsOf(std::string_view line, std::size_t most = mostColumns) {
    Cells cells;
    splitCells(line, most, cells);
    return cells;
}

TEST(ReportLines, EndAtLineFeedsAndLoseOneCarriageReturn) {
    const struct {
        const char* name;
        std::string_view text;
        std::vector<std::string_view> lines;
    } cases[] = {
        {"Windows", "a\r\nb\r\n", {"a", "b", ""}},
        {"only one carriage return goes", "a\r\r\n\r\n\rb", {"a\r", "", "\rb"}},
        {"a carriage return at the very end", "a\r", {"a"}},
        {"other line ends are text", "a\u2028b\vc\nd", {"a\u2028b\vc", "d"}},
    };
    for (const auto& [name, text, lines] : cases) {
        std::vector<std::string_view> actual;
        for (const auto line : reportLines(text)) {
            actual.push_back(line);
        }
        EXPECT_EQ(actual, lines) << name;
    }
}

TEST(SplitCells, KeepsEmptyCellsAndKnowsNoQuotes) {
    EXPECT_EQ(cellsOf(""), Cells{""});
    EXPECT_EQ(cellsOf("\ta\t\t"), (Cells{"", "a", "", ""}));
    EXPECT_EQ(cellsOf("\"a\tb\"\t c "), (Cells{"\"a", "b\"", " c "}));
    EXPECT_EQ(cellsOf("a\tb\tc", 2), (Cells{"a", "b"}));
    EXPECT_EQ(cellsOf(std::string(1'000'000, '\t')).size(), mostColumns);
}

TEST(NormalizedHeaderKey, IsTheSameForEverySpellingOfAHeading) {
    const struct {
        std::string_view heading;
        std::string_view key;
    } cases[] = {
        {"Product Type Identifier", "product_type_identifier"},
        {"PRODUCT-TYPE/IDENTIFIER", "product_type_identifier"},
        {"\u00A0\tUnits\u3000", "units"},
        {"Sale / Return", "sale___return"},
        {"Ans\u00A0Units", "ans\u00A0units"},
        {" ", ""},
    };
    for (const auto& [heading, key] : cases) {
        EXPECT_EQ(normalizedHeaderKey(heading), key);
    }
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
