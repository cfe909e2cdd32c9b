#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What a screen says in place of its figures while it has none.
struct EmptyState {
    Q_GADGET
    QML_VALUE_TYPE(emptyState)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString description MEMBER description)

  public:
    QString title;
    QString symbol;
    QString description;
    bool operator==(const EmptyState&) const = default;
};

}  // namespace vantrell
