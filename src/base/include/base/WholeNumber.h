#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrell {

/// Reads an optional sign and one or more ASCII digits, such as "+7". Absent for any other text and for a
/// number that a signed word can't hold.
[[nodiscard]] std::optional<std::int64_t> wholeNumber(std::string_view text);

}  // namespace vantrell
