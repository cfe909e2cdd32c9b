#pragma once

#include <QDir>
#include <QString>

namespace vantrell {

/// One of the desktop's folders of the user; not every desktop has each of them, and then it is the home.
[[nodiscard]] inline QDir userFolder(const QString& path) {
    const QDir folder(path);
    return folder.exists() ? folder : QDir::home();
}

}  // namespace vantrell
