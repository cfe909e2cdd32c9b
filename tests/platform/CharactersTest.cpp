#include "platform/Characters.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
const std::string flag = "\U0001F1EF\U0001F1F5";

TEST(Characters, AreCountedAsAReaderSeesThem) {
    const struct {
        const char* name;
        std::string text;
        std::size_t count;
        std::string first;
    } cases[] = {
        {"fewer than asked", "abc", 5, "abc"},
        {"a letter and its accent", "abe\u0301z", 3, "abe\u0301"},
        {"an accent right behind the cut", "abc\u0301z", 2, "ab"},
        {"emoji of several parts", family + family + "z", 1, family},
        {"flags in a row", flag + flag + flag, 2, flag + flag},
        {"Windows line ends", "a\r\nb\r\nc", 4, "a\r\nb\r\n"},
        {"an accent on a line end stands alone", "a\n\u0301z", 2, "a\n"},
    };
    for (const auto& [name, text, count, first] : cases) {
        EXPECT_EQ(firstCharacters(text, count), first) << name;
    }
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
