#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// Where rows are copied to: the desktop's clipboard.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString copyTitle READ copyTitle CONSTANT)

  public:
    using QObject::QObject;

    [[nodiscard]] QString copyTitle() const { return tr("Copy"); }

    /// An empty text leaves the clipboard as it is.
    Q_INVOKABLE void copy(const QString& text);
};

}  // namespace vantrell
