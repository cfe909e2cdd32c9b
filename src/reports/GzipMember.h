#pragma once

#include <optional>
#include <string_view>

namespace vantrell {

/// The DEFLATE stream of a gzip member (RFC 1952); absent for data that doesn't begin like one. The trailer's
/// checksum and length are not looked at. Throws ReportError.
[[nodiscard]] std::optional<std::string_view> gzipStream(std::string_view data);

}  // namespace vantrell
