#pragma once

#include <string_view>
#include <vector>

namespace vantrell {

// White space is the tab and what Unicode calls a space separator; line ends are line feed to carriage
// return, U+0085, U+2028 and U+2029. Texts are UTF-8.

/// Without the white space at both ends; line ends stay.
[[nodiscard]] std::string_view trimWhitespace(std::string_view text);

/// Without white space and line ends at both ends.
[[nodiscard]] std::string_view trimWhitespaceAndNewlines(std::string_view text);

/// The pieces between line ends; never none. A Windows line end counts as two and leaves an empty piece.
[[nodiscard]] std::vector<std::string_view> splitAtNewlines(std::string_view text);

}  // namespace vantrell
