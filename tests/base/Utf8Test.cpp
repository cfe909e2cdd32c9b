#include "base/Utf8.h"

#include <gtest/gtest.h>
#include <unicode/unistr.h>

namespace vantrell {
namespace {

TEST(Utf8, InvalidStretchesBecomeReplacementCharacters) {
    EXPECT_EQ(repairedUtf8(std::string(100, 'x') + "\xFFy\xF0\x9F\x98"),
              std::string(100, 'x') + "\uFFFDy\uFFFD");
    EXPECT_EQ(repairedUtf8("\uFEFF\U0001F600"), "\uFEFF\U0001F600") << "a byte order mark stays";
}

TEST(Utf8, RepairAgreesWithIcuOnEverySequenceOfFourNotableBytes) {
    const std::string notable = "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xDF\xE0\xE2\xED\xEF\xF0\xF3\xF4\xF5";
    const auto kinds = notable.size();
    for (std::size_t sequence = 0; sequence < kinds * kinds * kinds * kinds; ++sequence) {
        std::string bytes;
        for (auto rest = sequence; bytes.size() < 4; rest /= kinds) {
            bytes += notable[rest % kinds];
        }
        std::string expected;
        icu::UnicodeString::fromUTF8(bytes).toUTF8String(expected);
        ASSERT_EQ(repairedUtf8(bytes), expected) << ::testing::PrintToString(bytes);
    }
}

TEST(Utf8, ACutKeepsCharactersWhole) {
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 4), "a\u20AC");
    EXPECT_EQ(cutAtCodePoint("a\u20ACz", 2), "a");
    EXPECT_EQ(cutAtCodePoint("\x80\x80\x80\x80\x80\x80", 5).size(), 5U) << "no text, so any cut will do";
}

}  // namespace
}  // namespace vantrell
