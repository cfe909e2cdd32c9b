#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// Why a DEFLATE stream could not be unpacked.
enum class InflateError { corrupt, tooLarge };

struct Inflated {
    std::string bytes;
    std::optional<InflateError> error;  ///< when present, `bytes` is empty
    std::size_t streamBytes = 0;        ///< how long the stream is
};

/// Unpacks a raw DEFLATE stream (RFC 1951, no wrapper). The stream must reach its end: a cut one is corrupt.
/// Bytes after the end are ignored. Output past `maxBytes` is `tooLarge`.
[[nodiscard]] Inflated inflateRaw(std::string_view stream, std::size_t maxBytes);

}  // namespace vantrell
