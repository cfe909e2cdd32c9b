#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What stands above a table.
struct ColumnTitles {
    Q_GADGET
    QML_VALUE_TYPE(columnTitles)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QStringList columns MEMBER columns)

  public:
    QString name;  ///< of the first column
    QStringList columns;
    bool operator==(const ColumnTitles&) const = default;
};

}  // namespace vantrell
