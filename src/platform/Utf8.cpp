#include "platform/Utf8.h"

#include <cstdint>
#include <cstring>

namespace vantrell {
namespace {

constexpr std::string_view replacement = "\uFFFD";

std::uint8_t byteAt(std::string_view text, std::size_t index) {
    return static_cast<std::uint8_t>(text[index]);
}

bool isContinuation(std::uint8_t byte) {
    return (byte & 0xC0U) == 0x80U;
}

std::size_t lengthFromLead(std::uint8_t lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// Which second bytes a lead byte allows: fewer than usual where the others would spell an overlong form,
/// a surrogate or a number past U+10FFFF.
bool allowsSecond(std::uint8_t lead, std::uint8_t second) {
    switch (lead) {
        case 0xE0:
            return second >= 0xA0 && second <= 0xBF;
        case 0xED:
            return second >= 0x80 && second <= 0x9F;
        case 0xF0:
            return second >= 0x90 && second <= 0xBF;
        case 0xF4:
            return second >= 0x80 && second <= 0x8F;
        default:
            return isContinuation(second);
    }
}

struct Sequence {
    std::size_t length;  ///< of an invalid one: the bytes that one U+FFFD stands for
    bool valid;
};

Sequence sequenceAtStart(std::string_view text) {
    const std::uint8_t lead = byteAt(text, 0);
    const std::size_t length = lengthFromLead(lead);
    if (length == 0) {
        return {1, false};
    }
    for (std::size_t index = 1; index < length; ++index) {
        if (index == text.size()) {
            return {index, false};
        }
        const std::uint8_t byte = byteAt(text, index);
        if (index == 1 ? !allowsSecond(lead, byte) : !isContinuation(byte)) {
            return {index, false};
        }
    }
    return {length, true};
}

std::size_t validPrefixLength(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        position += asciiPrefixLength(text.substr(position));
        while (position < text.size() && byteAt(text, position) >= 0x80) {
            const Sequence sequence = sequenceAtStart(text.substr(position));
            if (!sequence.valid) {
                return position;
            }
            position += sequence.length;
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
        rest.remove_prefix(sequenceAtStart(rest).length);
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
    while (end > 0 && maxBytes - end < 3 && isContinuation(byteAt(text, end))) {
        --end;
    }
    return text.substr(0, isContinuation(byteAt(text, end)) ? maxBytes : end);
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
    while (position < text.size() && byteAt(text, position) < 0x80) {
        ++position;
    }
    return position;
}

}  // namespace vantrell
