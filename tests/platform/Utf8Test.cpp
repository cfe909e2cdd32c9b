#include "platform/Utf8.h"

#include <array>

#include <gtest/gtest.h>
#include <unicode/unistr.h>

namespace vantrell {
namespace {

TEST(Utf8, InvalidStretchesBecomeReplacementCharacters) {
    struct Case {
        const char* name;
        std::string bytes;
        std::string repaired;
    };
    const std::array cases{
        Case{"empty", "", ""},
        Case{"plain", "Units\t1\n", "Units\t1\n"},
        Case{"every length", "a\u00E9\u20AC\U0001F600", "a\u00E9\u20AC\U0001F600"},
        Case{"byte order mark", "\uFEFFProvider", "\uFEFFProvider"},
        Case{"zero byte", std::string("a\0b", 3), std::string("a\0b", 3)},
        Case{"lone continuation", "a\x80z", "a\uFFFDz"},
        Case{"never a lead", "\xC0\xAF\xFE\xFF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        Case{"cut at the end", "ab\xE2\x82", "ab\uFFFD"},
        Case{"cut before a letter", "\xF0\x9F\x98z", "\uFFFDz"},
        Case{"overlong", "\xE0\x80\x80", "\uFFFD\uFFFD\uFFFD"},
        Case{"surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        Case{"past the last plane", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        Case{"after a long valid start", std::string(100, 'x') + "\xFFy", std::string(100, 'x') + "\uFFFDy"},
    };
    for (const auto& [name, bytes, repaired] : cases) {
        EXPECT_EQ(repairedUtf8(bytes), repaired) << name;
    }
}

TEST(Utf8, RepairAgreesWithIcuOnEverySequenceOfFourNotableBytes) {
    const std::string notable = "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xDF\xE0\xE2\xED\xEF\xF0\xF3\xF4\xF5";
    std::string bytes(4, '\0');
    for (const char first : notable) {
        for (const char second : notable) {
            for (const char third : notable) {
                for (const char fourth : notable) {
                    bytes = {first, second, third, fourth};
                    std::string expected;
                    icu::UnicodeString::fromUTF8(bytes).toUTF8String(expected);
                    ASSERT_EQ(repairedUtf8(bytes), expected) << ::testing::PrintToString(bytes);
                }
            }
        }
    }
}

TEST(Utf8, ValidTextIsHandedOnWithoutACopy) {
    std::string text = "caf\u00E9, long enough to live on the heap";
    const char* const storage = text.data();
    const std::string repaired = repairedUtf8(std::move(text));
    EXPECT_TRUE(repaired.data() == storage);
}

TEST(Utf8, ACutKeepsCharactersWhole) {
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 5), "a\u20ACz");
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 4), "a\u20AC");
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 3), "a");
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 2), "a");
    EXPECT_EQ(cutAtCodePoint("\x80\x80\x80\x80\x80\x80", 5).size(), 5U) << "no text, so any cut will do";
}

}  // namespace
}  // namespace vantrell
