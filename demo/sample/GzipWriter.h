#pragma once

#include <string>
#include <string_view>

namespace vantrell::sample {

/// A gzip file (RFC 1952) of one member with correct checksum and length. A `fileName` that is not empty
/// goes into the header. Throws std::bad_alloc if the library has no memory.
[[nodiscard]] std::string gzip(std::string_view content, std::string_view fileName = {});

}  // namespace vantrell::sample
