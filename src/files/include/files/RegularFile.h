#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <variant>

namespace vantrell {

/// Why a file could not be read, for the user.
struct FileReadError {
    std::string description;
    bool isMissing = false;
    bool operator==(const FileReadError&) const = default;
};

/// The bytes of a small file. What is no plain file or is larger than `maxBytes` is refused, so that whatever
/// lies there by mistake can neither block nor fill the memory. Any name will do, also one that is no UTF-8.
[[nodiscard]] std::variant<std::string, FileReadError> readRegularFile(const std::filesystem::path& file,
                                                                       std::uintmax_t maxBytes);

}  // namespace vantrell
