#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrell {

/// The DEFLATE stream of a gzip member (RFC 1952); absent for data that doesn't begin like one. Behind its
/// end there is room for a trailer. Throws ReportError.
[[nodiscard]] std::optional<std::string_view> gzipStream(std::string_view data);

/// Holds the trailer, which begins at `end`, against the text's checksum and length. Throws ReportError.
void checkTrailer(const char* end, std::uint32_t checksum, std::size_t length);

}  // namespace vantrell
