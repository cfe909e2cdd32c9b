#include "platform/Characters.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
const std::string flag = "\U0001F1EF\U0001F1F5";

std::string repeated(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t index = 0; index < count; ++index) {
        all += text;
    }
    return all;
}

TEST(Characters, AreCountedAsAReaderSeesThem) {
    struct Case {
        const char* name;
        std::string text;
        std::size_t count;
        std::string first;
    };
    const std::array cases{
        Case{"fewer than asked", "abc", 5, "abc"},
        Case{"just as many", "abc", 3, "abc"},
        Case{"none", "abc", 0, ""},
        Case{"plain", "abcdef", 4, "abcd"},
        Case{"a letter and its accent", "abe\u0301z", 3, "abe\u0301"},
        Case{"an accent right behind the cut", "abc\u0301z", 2, "ab"},
        Case{"emoji of several parts", family + family + "z", 1, family},
        Case{"flags in a row", flag + flag + flag, 2, flag + flag},
        Case{"Arabic", "\u0645\u0631\u062D\u0628\u0627", 2, "\u0645\u0631"},
        Case{"Windows line ends", "a\r\nb\r\nc", 4, "a\r\nb\r\n"},
        Case{"an accent on a line end stands alone", "a\n\u0301z", 2, "a\n"},
    };
    for (const auto& [name, text, count, first] : cases) {
        EXPECT_EQ(firstCharacters(text, count), first) << name;
    }
}

TEST(Characters, LongTextsOfEveryKindAreCutAtTheCount) {
    for (const std::string& one : {std::string("x"), std::string("\u00E9"), family, flag}) {
        EXPECT_EQ(firstCharacters(repeated(one, 501), 500), repeated(one, 500));
        EXPECT_EQ(firstCharacters(repeated(one, 500), 500), repeated(one, 500));
    }
}

TEST(Characters, AGiantClusterIsBounded) {
    const std::string giant = "e" + repeated("\u0301", 100'000);
    const auto cut = firstCharacters(giant, 500);
    EXPECT_LE(cut.size(), 64'000U);
    EXPECT_GE(cut.size(), 63'990U);
    EXPECT_EQ(cut.size() % 2, 1U) << "an accent was cut in two";
}

}  // namespace
}  // namespace vantrell
