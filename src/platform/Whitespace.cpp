#include "platform/Whitespace.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace vantrell {
namespace {

using Characters = std::span<const std::string_view>;

// Each as its UTF-8 bytes: in valid text no other character's bytes begin or end with them.
constexpr std::array<std::string_view, 25> blanks{
    " ",      "\t",     "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004",
    "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u202F", "\u205F", "\u3000",
    "\n",     "\v",     "\f",     "\r",     "\u0085", "\u2028", "\u2029"};
constexpr Characters spaces = Characters(blanks).first(18);
constexpr Characters newlines = Characters(blanks).subspan(18);

/// The bytes of the one of `wanted` that `text` begins with; 0 if there is none.
std::size_t lengthAtStart(std::string_view text, Characters wanted) {
    const auto found =
        std::ranges::find_if(wanted, [text](std::string_view known) { return text.starts_with(known); });
    return found == wanted.end() ? 0 : found->size();
}

std::size_t lengthAtEnd(std::string_view text, Characters wanted) {
    const auto found =
        std::ranges::find_if(wanted, [text](std::string_view known) { return text.ends_with(known); });
    return found == wanted.end() ? 0 : found->size();
}

bool isVisibleAscii(char byte) {
    return byte > ' ' && byte <= '~';
}

std::string_view trim(std::string_view text, Characters wanted) {
    while (!text.empty() && !isVisibleAscii(text.front())) {
        const std::size_t length = lengthAtStart(text, wanted);
        if (length == 0) {
            break;
        }
        text.remove_prefix(length);
    }
    while (!text.empty() && !isVisibleAscii(text.back())) {
        const std::size_t length = lengthAtEnd(text, wanted);
        if (length == 0) {
            break;
        }
        text.remove_suffix(length);
    }
    return text;
}

}  // namespace

std::string_view trimWhitespace(std::string_view text) {
    return trim(text, spaces);
}

std::string_view trimWhitespaceAndNewlines(std::string_view text) {
    return trim(text, blanks);
}

std::vector<std::string_view> splitAtNewlines(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t length = lengthAtStart(text.substr(position), newlines);
        if (length == 0) {
            ++position;
            continue;
        }
        pieces.push_back(text.substr(start, position - start));
        position += length;
        start = position;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

}  // namespace vantrell
