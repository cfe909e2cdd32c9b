#pragma once

#include "files/RegularFile.h"

namespace vantrell {

/// The whole of a small file of UTF-8 text; see `readRegularFile` for what else is refused.
[[nodiscard]] std::variant<std::string, FileReadError> readTextFile(const std::filesystem::path& file,
                                                                    std::uintmax_t maxBytes);

}  // namespace vantrell
