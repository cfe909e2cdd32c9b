#include "files/TextFile.h"

#include "base/Utf8.h"

namespace vantrell {

std::variant<std::string, FileReadError> readTextFile(const std::filesystem::path& file,
                                                      std::uintmax_t maxBytes) {
    auto read = readRegularFile(file, maxBytes);
    const auto* bytes = std::get_if<std::string>(&read);
    if (bytes != nullptr && repairedUtf8(*bytes) != *bytes) {
        return FileReadError{"The file is not UTF-8 text."};
    }
    return read;
}

}  // namespace vantrell
