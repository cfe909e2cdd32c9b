#include "base/LowerCase.h"

#include "base/Utf8.h"

#include <cstdint>
#include <limits>

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

namespace vantrell {
namespace {

std::string lowerCaseAscii(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) {
        if (letter >= 'A' && letter <= 'Z') {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
    }
    return lower;
}

}  // namespace

std::string lowerCase(std::string_view text) {
    const bool fits = text.size() <= std::numeric_limits<std::int32_t>::max() / 3;
    if (!fits || asciiPrefixLength(text) == text.size()) {
        return lowerCaseAscii(text);
    }
    std::string lower;
    icu::StringByteSink<std::string> sink(&lower, static_cast<std::int32_t>(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    const icu::StringPiece source(text.data(), static_cast<std::int32_t>(text.size()));
    icu::CaseMap::utf8ToLower("", 0, source, sink, nullptr, status);
    return U_SUCCESS(status) ? lower : lowerCaseAscii(text);
}

}  // namespace vantrell
