#include "CodePoints.h"

#include <algorithm>
#include <cstdint>

#include <unicode/utf8.h>

// The library reads UTF-8 by macros only, whose casts are not ours.
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wold-style-cast"

namespace vantrell {

CodePoint firstCodePoint(std::string_view text) {
    UChar32 code = 0;
    std::size_t end = 0;
    U8_NEXT(text.data(), end, text.size(), code);
    return {code, end};
}

CodePoint lastCodePoint(std::string_view text) {
    const std::string_view tail =
        text.substr(text.size() - std::min<std::size_t>(text.size(), U8_MAX_LENGTH));
    UChar32 code = 0;
    auto start = static_cast<std::int32_t>(tail.size());
    U8_PREV(tail.data(), 0, start, code);
    return {code, tail.size() - static_cast<std::size_t>(start)};
}

}  // namespace vantrell
