#include "base/Whitespace.h"
#include "testing/Cases.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace vantrell {
namespace {

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
