#include "platform/Whitespace.h"

#include <cstddef>
#include <cstdint>

namespace vantrell {
namespace {

struct Character {
    char32_t code;
    std::size_t bytes;
};

bool isContinuation(char byte) {
    return (static_cast<std::uint8_t>(byte) & 0xC0U) == 0x80U;
}

/// The code point of a whole sequence. What is looked for here has at most three bytes, so that a longer
/// sequence may give any number beyond.
char32_t codeOf(std::string_view sequence) {
    constexpr char32_t beyond = 0x110000;
    const auto byte = [sequence](std::size_t index) { return static_cast<std::uint8_t>(sequence[index]); };
    switch (sequence.size()) {
        case 1:
            return byte(0) < 0x80 ? byte(0) : beyond;
        case 2:
            return (byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU);
        case 3:
            return (byte(0) & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
        default:
            return beyond;
    }
}

Character firstOf(std::string_view text) {
    std::size_t bytes = 1;
    while (bytes < text.size() && bytes < 4 && isContinuation(text[bytes])) {
        ++bytes;
    }
    return {codeOf(text.substr(0, bytes)), bytes};
}

Character lastOf(std::string_view text) {
    std::size_t bytes = 1;
    while (bytes < text.size() && bytes < 4 && isContinuation(text[text.size() - bytes])) {
        ++bytes;
    }
    return {codeOf(text.substr(text.size() - bytes)), bytes};
}

bool isSpace(char32_t code) {
    return code == ' ' || code == '\t' || code == 0xA0 || code == 0x1680 ||
           (code >= 0x2000 && code <= 0x200A) || code == 0x202F || code == 0x205F || code == 0x3000;
}

bool isNewline(char32_t code) {
    return (code >= '\n' && code <= '\r') || code == 0x85 || code == 0x2028 || code == 0x2029;
}

bool isBlank(char32_t code) {
    return isSpace(code) || isNewline(code);
}

// Nearly all texts begin and end with one of these, which are no white space.
bool isGraphicASCII(char letter) {
    return letter > ' ' && letter <= '~';
}

template <bool (*isWanted)(char32_t)>
std::string_view trim(std::string_view text) {
    while (!text.empty() && !isGraphicASCII(text.front())) {
        const Character first = firstOf(text);
        if (!isWanted(first.code)) {
            break;
        }
        text.remove_prefix(first.bytes);
    }
    while (!text.empty() && !isGraphicASCII(text.back())) {
        const Character last = lastOf(text);
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
    return trim<isBlank>(text);
}

std::vector<std::string_view> splitAtNewlines(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const Character next = firstOf(text.substr(position));
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
