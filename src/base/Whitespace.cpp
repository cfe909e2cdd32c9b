#include "base/Whitespace.h"

#include "CodePoints.h"

#include <cstddef>

#include <unicode/uchar.h>

namespace vantrell {
namespace {

bool isSpace(int code) {
    return u_isblank(code);
}

bool isNewline(int code) {
    return (code >= '\n' && code <= '\r') || code == 0x85 || code == 0x2028 || code == 0x2029;
}

bool isSpaceOrNewline(int code) {
    return isSpace(code) || isNewline(code);
}

// Nearly all texts begin and end with one of these, which are no white space.
bool isGraphicASCII(char letter) {
    return letter > ' ' && letter <= '~';
}

template <bool (*isWanted)(int)>
std::string_view trim(std::string_view text) {
    while (!text.empty() && !isGraphicASCII(text.front())) {
        const CodePoint first = firstCodePoint(text);
        if (!isWanted(first.code)) {
            break;
        }
        text.remove_prefix(first.bytes);
    }
    while (!text.empty() && !isGraphicASCII(text.back())) {
        const CodePoint last = lastCodePoint(text);
        if (!isWanted(last.code)) {
            break;
        }
        text.remove_suffix(last.bytes);
    }
    return text;
}

}  // namespace

std::string_view trimWhitespace(std::string_view text) {
    return trim<isSpace>(text);
}

std::string_view trimWhitespaceAndNewlines(std::string_view text) {
    return trim<isSpaceOrNewline>(text);
}

std::vector<std::string_view> splitAtNewlines(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const CodePoint next = firstCodePoint(text.substr(position));
        if (isNewline(next.code)) {
            pieces.push_back(text.substr(start, position - start));
            start = position + next.bytes;
        }
        position += next.bytes;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

}  // namespace vantrell
