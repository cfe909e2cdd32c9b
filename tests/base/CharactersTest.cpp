#include "base/Characters.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

TEST(Characters, AreCountedAsAReaderSeesThem) {
    testing::expectCases<2>(VANTRELL_TEST_DATA "/first-characters.tsv",
                            [](const std::string& count, const std::string& text) {
                                return firstCharacters(text, std::stoul(count));
                            });
}

TEST(Characters, AGiantClusterIsBounded) {
    std::string giant = "e";
    while (giant.size() < 200'000) {
        giant += "\u0301";
    }
    const auto cut = firstCharacters(giant, 500);
    EXPECT_LE(cut.size(), 64'000U);
    EXPECT_GE(cut.size(), 63'990U);
    EXPECT_EQ(cut.size() % 2, 1U) << "an accent was cut in two";
}

}  // namespace
}  // namespace vantrell
