#include "platform/LowerCase.h"
#include "platform/Whitespace.h"

#include <gtest/gtest.h>
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
    const struct {
        const char* name;
        std::string_view text;
        std::string_view trimmed;
        std::string_view withoutNewlines;
    } cases[] = {
        {"inner spaces stay", "\u00A0 a \u3000 b\t", "a \u3000 b", "a \u3000 b"},
        {"line ends", " \r\n a \n", "\r\n a \n", "a"},
        {"a currency sign that begins like a space", "\u20AC", "\u20AC", "\u20AC"},
    };
    for (const auto& [name, text, trimmed, withoutNewlines] : cases) {
        EXPECT_EQ(trimWhitespace(text), trimmed) << name;
        EXPECT_EQ(trimWhitespaceAndNewlines(text), withoutNewlines) << name;
    }
}

TEST(Whitespace, EveryLineEndSplits) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(splitAtNewlines("a\r\nb\n"), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(splitAtNewlines("a\u2029b\u0085c\vd"), (Pieces{"a", "b", "c", "d"}));
}

TEST(LowerCase, FollowsUnicodeWithoutALanguage) {
    EXPECT_EQ(lowerCase("\u00C9T\u00C9 \u0416"), "\u00E9t\u00E9 \u0436");
    EXPECT_EQ(lowerCase("\uFEFFA"), "\uFEFFa") << "a byte order mark stays";
}

}  // namespace
}  // namespace vantrell
