#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The desktop's clipboard, where figures, rows and typed texts are copied to, and the words of its menus.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString copyTitle READ copyTitle CONSTANT)
    Q_PROPERTY(QString cutTitle READ cutTitle CONSTANT)
    Q_PROPERTY(QString pasteTitle READ pasteTitle CONSTANT)
    Q_PROPERTY(QString selectAllTitle READ selectAllTitle CONSTANT)

  public:
    using QObject::QObject;

    [[nodiscard]] QString copyTitle() const { return tr("Copy"); }
    [[nodiscard]] QString cutTitle() const { return tr("Cut"); }
    [[nodiscard]] QString pasteTitle() const { return tr("Paste"); }
    [[nodiscard]] QString selectAllTitle() const { return tr("Select All"); }

    /// An empty text leaves the clipboard as it is.
    Q_INVOKABLE void copy(const QString& text);
};

}  // namespace vantrell
