#include "platform/AtomicFile.h"

#include <QFile>
#include <QSaveFile>

namespace vantrell {

std::optional<std::string> writeAtomically(const std::filesystem::path& file, std::string_view bytes) {
    std::error_code failed;
    if (file.has_parent_path()) {
        std::filesystem::create_directories(file.parent_path(), failed);
    }
    if (failed) {
        return file.parent_path().string() + ": " + failed.message();
    }
    QSaveFile target(QFile::decodeName(file.c_str()));
    const auto size = static_cast<qint64>(bytes.size());
    if (target.open(QIODevice::WriteOnly) && target.write(bytes.data(), size) == size && target.commit()) {
        return std::nullopt;
    }
    return file.string() + ": " + target.errorString().toStdString();
}

}  // namespace vantrell
