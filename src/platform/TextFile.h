#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <variant>

namespace vantrell {

/// Why a file could not be read, for the user.
struct TextFileError {
    std::string description;
    bool operator==(const TextFileError&) const = default;
};

/// The whole of a small file of UTF-8 text. What is no plain file, is larger than `maxBytes` or is no UTF-8
/// is refused, so that nothing that was picked by mistake can block or fill the memory.
[[nodiscard]] std::variant<std::string, TextFileError> readTextFile(const std::filesystem::path& file,
                                                                    std::uintmax_t maxBytes);

}  // namespace vantrell
