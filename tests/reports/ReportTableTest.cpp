#include "reports/ReportTable.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(SplitCells, HasABound) {
    Cells cells;
    splitCells(std::string(1'000'000, '\t'), mostColumns, cells);
    EXPECT_EQ(cells.size(), mostColumns);
}

TEST(SkippedLines, StopGrowingOnce2000CharactersAreReached) {
    SkippedLines sample;
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

}  // namespace
}  // namespace vantrell
