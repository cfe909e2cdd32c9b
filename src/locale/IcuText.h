#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unicode/stringpiece.h>
#include <unicode/unistr.h>
#include <unicode/utypes.h>

namespace vantrell {

// Between our texts, which are UTF-8, and those of the library for locales.

[[nodiscard]] inline std::string utf8(const icu::UnicodeString& text) {
    std::string result;
    return text.toUTF8String(result);
}

[[nodiscard]] inline icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// Throws std::runtime_error if `status` is a failure. Only a broken installation of the library comes here.
inline void requireLocaleData(UErrorCode status) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(std::string("locale data can't be read: ") + u_errorName(status));
    }
}

}  // namespace vantrell
