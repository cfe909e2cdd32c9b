#include "base/Characters.h"

#include "base/Utf8.h"

#include <cassert>
#include <cstdint>
#include <limits>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/utext.h>

namespace vantrell {
namespace {

// The longest emoji in use, a family with skin tones, has 41 bytes.
constexpr std::size_t maxBytesPerCharacter = 128;

/// Where character number `count` ends; the size of the text if it has no more.
std::size_t endOfCharacter(std::string_view text, std::size_t count) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUTextPointer source(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status));
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_SUCCESS(status)) {
        characters->setText(source.getAlias(), status);
    }
    if (U_FAILURE(status)) {
        return cutAtCodePoint(text, count).size();
    }
    const std::int32_t end = characters->next(static_cast<std::int32_t>(count));
    return end == icu::BreakIterator::DONE ? text.size() : static_cast<std::size_t>(end);
}

}  // namespace

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    assert(count <= std::numeric_limits<std::int32_t>::max() / maxBytesPerCharacter);
    if (count == 0 || text.size() <= count) {
        return text.substr(0, count);
    }
    // In plain ASCII each byte is a character, but for a Windows line end and a letter before an accent.
    const std::string_view start = text.substr(0, count + 1);
    if (asciiPrefixLength(start) == start.size() && start.find('\r') == std::string_view::npos) {
        return text.substr(0, count);
    }
    const std::string_view bounded = cutAtCodePoint(text, count * maxBytesPerCharacter);
    return bounded.substr(0, endOfCharacter(bounded, count));
}

}  // namespace vantrell
