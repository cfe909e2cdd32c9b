#include "screens/ProgramIcon.h"

#include <array>

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace vantrell {
namespace {

constexpr std::array iconSizes{16, 24, 32, 48, 64, 128, 256};

void draw(QPainter& painter, const QRectF& bounds) {
    QSvgRenderer(QStringLiteral(":/images/appicon.svg")).render(&painter, bounds);
}

}  // namespace

ProgramIcon::ProgramIcon(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(64, 64);
    setAntialiasing(true);
}

void ProgramIcon::paint(QPainter* painter) {
    draw(*painter, boundingRect());
}

QIcon ProgramIcon::asIcon() {
    QIcon icon;
    for (const int size : iconSizes) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        draw(painter, picture.rect());
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace vantrell
