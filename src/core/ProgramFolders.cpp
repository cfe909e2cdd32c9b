#include "core/ProgramFolders.h"

#include <QStandardPaths>

namespace vantrell {
namespace {

std::filesystem::path folder(QStandardPaths::StandardLocation location) {
    return std::filesystem::path(QStandardPaths::writableLocation(location).toStdString()) / "vantrell";
}

}  // namespace

ProgramFolders ProgramFolders::ofUser() {
    return {.data = folder(QStandardPaths::GenericDataLocation),
            .config = folder(QStandardPaths::GenericConfigLocation),
            .cache = folder(QStandardPaths::GenericCacheLocation)};
}

}  // namespace vantrell
