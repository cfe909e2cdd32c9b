#include "platform/TextFile.h"

#include "platform/Utf8.h"

#include <utility>

#include <QFile>

namespace vantrell {
namespace {

namespace fs = std::filesystem;

std::variant<std::string, TextFileError> checkedText(std::string bytes) {
    if (repairedUtf8(bytes) != bytes) {
        return TextFileError{"The file is not UTF-8 text."};
    }
    return bytes;
}

}  // namespace

std::variant<std::string, TextFileError> readTextFile(const fs::path& file, std::uintmax_t maxBytes) {
    std::error_code failed;
    const fs::file_status status = fs::status(file, failed);
    if (status.type() == fs::file_type::not_found) {
        return TextFileError{"No such file."};
    }
    // A pipe or a device would block.
    if (status.type() != fs::file_type::regular) {
        return TextFileError{failed ? failed.message() : "It is not a file."};
    }
    QFile source(QFile::decodeName(file.c_str()));
    if (!source.open(QIODevice::ReadOnly)) {
        return TextFileError{source.errorString().toStdString()};
    }
    // Read and not asked for its size, which may change meanwhile.
    std::string bytes = source.read(static_cast<qint64>(maxBytes) + 1).toStdString();
    if (bytes.size() > maxBytes) {
        return TextFileError{"The file is too large."};
    }
    return checkedText(std::move(bytes));
}

}  // namespace vantrell
