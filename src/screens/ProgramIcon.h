#pragma once

#include <QIcon>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The program's own icon, crisp at any scale.
class ProgramIcon : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit ProgramIcon(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    /// The same in the sizes that desktops show.
    [[nodiscard]] static QIcon asIcon();
};

}  // namespace vantrell
