#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The desktop's clipboard, where figures, rows and typed texts are copied to, and the words of its menus.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT

  public:
    using QObject::QObject;

    /// An empty text leaves the clipboard as it is.
    Q_INVOKABLE void copy(const QString& text);
};

}  // namespace vantrell
