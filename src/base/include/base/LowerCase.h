#pragma once

#include <string>
#include <string_view>

namespace vantrell {

/// `text`, which is UTF-8, in lower case by Unicode's rules for no language in particular.
[[nodiscard]] std::string lowerCase(std::string_view text);

}  // namespace vantrell
