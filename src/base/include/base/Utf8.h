#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrell {

/// `bytes` as valid UTF-8: each longest stretch that could have begun a character but doesn't finish one
/// becomes U+FFFD, as Unicode recommends. Valid text comes back as it was, without a copy, and a byte order
/// mark is a character like any other.
[[nodiscard]] std::string repairedUtf8(std::string bytes);

[[nodiscard]] bool isUtf8(std::string_view text);

/// The longest beginning of `text` that is at most `maxBytes` long and cuts no character in two.
[[nodiscard]] std::string_view cutAtCodePoint(std::string_view text, std::size_t maxBytes);

/// How many bytes at the beginning of `text` are ASCII.
[[nodiscard]] std::size_t asciiPrefixLength(std::string_view text);

}  // namespace vantrell
