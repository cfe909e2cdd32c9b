#pragma once

#include <string_view>

#include <QString>

namespace vantrell {

/// How many characters of a foreign text are shown where nothing else is said.
inline constexpr int shownCharacters = 300;
/// Of what a service or the system said, which is shown whole.
inline constexpr int messageCharacters = 1000;

/// A text from a report or a service as a screen may hold it: one line of at most `characters` letters,
/// without control characters and overlong stacks of combining marks; what is cut off becomes "…". Markup is
/// left as it is, since every item shows plain text.
[[nodiscard]] QString shownText(std::string_view utf8, int characters = shownCharacters);

/// Our own text, which needs no clamping.
[[nodiscard]] QString fromUtf8(std::string_view utf8);

}  // namespace vantrell
