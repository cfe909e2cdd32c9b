#include "base/Utf8.h"

#include "CodePoints.h"

#include <cstdint>
#include <cstring>

namespace vantrell {
namespace {

constexpr std::string_view replacement = "\uFFFD";

bool isASCII(char byte) {
    return static_cast<std::uint8_t>(byte) < 0x80;
}

bool isContinuation(char byte) {
    return (static_cast<std::uint8_t>(byte) & 0xC0U) == 0x80U;
}

std::size_t validPrefixLength(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        position += asciiPrefixLength(text.substr(position));
        while (position < text.size() && !isASCII(text[position])) {
            const CodePoint next = firstCodePoint(text.substr(position));
            if (next.code < 0) {
                return position;
            }
            position += next.bytes;
        }
    }
    return position;
}

}  // namespace

std::string repairedUtf8(std::string bytes) {
    std::string_view rest = bytes;
    std::size_t valid = validPrefixLength(rest);
    if (valid == rest.size()) {
        return bytes;
    }
    std::string repaired;
    repaired.reserve(bytes.size() + replacement.size());
    while (valid < rest.size()) {
        repaired.append(rest.substr(0, valid)).append(replacement);
        rest.remove_prefix(valid);
        rest.remove_prefix(firstCodePoint(rest).bytes);
        valid = validPrefixLength(rest);
    }
    return repaired.append(rest);
}

bool isUtf8(std::string_view text) {
    return validPrefixLength(text) == text.size();
}

std::string_view cutAtCodePoint(std::string_view text, std::size_t maxBytes) {
    if (text.size() <= maxBytes) {
        return text;
    }
    // A character has at most three continuation bytes; more of them are no text, and are cut anywhere.
    std::size_t end = maxBytes;
    while (end > 0 && maxBytes - end < 3 && isContinuation(text[end])) {
        --end;
    }
    return text.substr(0, isContinuation(text[end]) ? maxBytes : end);
}

std::size_t asciiPrefixLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t position = 0;
    for (std::uint64_t word = 0; text.size() - position >= sizeof word; position += sizeof word) {
        std::memcpy(&word, text.data() + position, sizeof word);
        if ((word & highBits) != 0) {
            break;
        }
    }
    while (position < text.size() && isASCII(text[position])) {
        ++position;
    }
    return position;
}

}  // namespace vantrell
