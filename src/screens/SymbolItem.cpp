#include "screens/SymbolItem.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSvgRenderer>

namespace vantrell {
namespace {

// The drawings are black on nothing; their shape in another colour.
QImage drawn(const QString& file, const QSize& pixels, const QColor& color) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(file).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

}  // namespace

SymbolItem::SymbolItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(16, 16);
    setAntialiasing(true);
}

void SymbolItem::setName(const QString& name) {
    if (name != name_) {
        name_ = name;
        Q_EMIT nameChanged();
        update();
    }
}

void SymbolItem::setColor(const QColor& color) {
    if (color != color_) {
        color_ = color;
        Q_EMIT colorChanged();
        update();
    }
}

void SymbolItem::paint(QPainter* painter) {
    const QString file = QStringLiteral(":/symbols/%1.svg").arg(name_);
    if (name_.isEmpty() || !QFile::exists(file)) {
        return;
    }
    const qreal scale = window() == nullptr ? 1.0 : window()->effectiveDevicePixelRatio();
    const QSize pixels = (size() * scale).toSize();
    if (!pixels.isEmpty()) {
        painter->drawImage(boundingRect(), drawn(file, pixels, color_));
    }
}

}  // namespace vantrell
