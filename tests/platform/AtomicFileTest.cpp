#include "platform/AtomicFile.h"
#include "testing/Golden.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(AtomicFile, ReplacesTheWholeFileAndMakesItsFolder) {
    const testing::TemporaryFolder folder;
    const auto file = folder / "a/b/figures.csv";
    EXPECT_EQ(writeAtomically(file, "a longer text\n"), std::nullopt);
    EXPECT_EQ(writeAtomically(file, std::string_view("\0x\r\n", 4)), std::nullopt);
    EXPECT_EQ(testing::fileText(file), std::string("\0x\r\n", 4));
    EXPECT_EQ(testing::filesIn(folder / "a/b", ".csv").size(), 1U);
}

TEST(AtomicFile, SaysWhatStoodInTheWayAndLeavesIt) {
    const testing::TemporaryFolder folder;
    const auto file = folder / "figures.csv";
    ASSERT_EQ(writeAtomically(file, "old"), std::nullopt);
    EXPECT_NE(writeAtomically(file / "below.csv", "new").value_or("").find("figures.csv"), std::string::npos);
    std::filesystem::create_directories(folder / "taken.csv" / "inside");
    EXPECT_NE(writeAtomically(folder / "taken.csv", "new").value_or("").find("taken.csv"), std::string::npos);
    EXPECT_EQ(testing::fileText(file), "old");
    EXPECT_TRUE(std::filesystem::is_directory(folder / "taken.csv" / "inside"));
}

}  // namespace
}  // namespace vantrell
