#pragma once

#include <cstdint>
#include <string_view>

namespace vantrell {

/// The CRC-32 of a text whose beginning has the checksum `before`; 0 is that of nothing.
[[nodiscard]] std::uint32_t crc32(std::string_view text, std::uint32_t before = 0);

}  // namespace vantrell
