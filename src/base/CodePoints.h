#pragma once

#include <cstddef>
#include <string_view>

namespace vantrell {

/// The character at one end of a UTF-8 text.
struct CodePoint {
    int code;           ///< negative where the bytes are no character
    std::size_t bytes;  ///< those of the character, or those that one U+FFFD stands for
};

/// `text` must not be empty.
[[nodiscard]] CodePoint firstCodePoint(std::string_view text);
[[nodiscard]] CodePoint lastCodePoint(std::string_view text);

}  // namespace vantrell
