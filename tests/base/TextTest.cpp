#include "base/Characters.h"
#include "base/Utf8.h"
#include "base/Whitespace.h"
#include "testing/Cases.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

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

TEST(Whitespace, IsTheTabAndEverySpaceSeparatorOfUnicode) {
    // The last space separator is U+3000.
    for (UChar32 code = 0; code <= 0x3FFF; ++code) {
        std::string character;
        icu::UnicodeString(code).toUTF8String(character);
        const bool space = code == '\t' || u_charType(code) == U_SPACE_SEPARATOR;
        const std::string padded = std::string(character).append("x").append(character);
        ASSERT_EQ(trimWhitespace(padded), space ? "x" : padded) << code;
    }
}

TEST(Whitespace, TrimmingStopsAtTheFirstOtherCharacter) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/trimmed.tsv", [](const std::string& text) {
        return std::string(trimWhitespace(text)).append(" | ").append(trimWhitespaceAndNewlines(text));
    });
}

TEST(Whitespace, EveryLineEndSplits) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(splitAtNewlines("a\r\nb\n"), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(splitAtNewlines("a\u2029b\u0085c\vd"), (Pieces{"a", "b", "c", "d"}));
}

}  // namespace
}  // namespace vantrell
