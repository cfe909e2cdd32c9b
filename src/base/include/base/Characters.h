#pragma once

#include <cstddef>
#include <string_view>

namespace vantrell {

/// The first `count` characters of `text`, which is UTF-8; the whole text if it has no more.
///
/// A character is what a reader sees as one: a grapheme cluster, so that a letter keeps its accents, an emoji
/// its parts and a Windows line end counts once. Nothing limits how long a cluster gets, and so the result
/// is also held to 128 bytes for each character asked for. Whether a text is longer than `count` characters
/// shows in `firstCharacters(text, count).size() < text.size()`.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t count);

}  // namespace vantrell
