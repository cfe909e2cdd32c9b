#include "sample/IconDesk.h"

#include "sample/IconGlyph.h"

#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace vantrell::sample {

namespace {

constexpr int large = 100;
constexpr int small = 60;

/// Neighbours in the catalogue are far from each other on the circle of hues.
int hueOf(std::int64_t appleID) {
    constexpr int goldenAngle = 137;
    return static_cast<int>((appleID * goldenAngle + 150) % 360);
}

QImage painted(std::int64_t appleID, int side) {
    QImage image(side, side, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // All that follows is in units of half a side, around the middle.
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(side / 2.0, side / 2.0);
    const int hue = hueOf(appleID);
    QLinearGradient ground(-0.6, -1, 0.6, 1);
    ground.setColorAt(0, QColor::fromHsv(hue, 150, 245));
    ground.setColorAt(1, QColor::fromHsv((hue + 25) % 360, 215, 185));
    painter.fillRect(QRectF(-1, -1, 2, 2), ground);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 26));
    painter.drawEllipse(QPointF(-0.5, -0.9), 1.3, 1.3);
    painter.scale(0.0066, 0.0066);
    painter.fillPath(iconGlyph(appleID).translated(0, 6), QColor(0, 0, 0, 40));
    painter.fillPath(iconGlyph(appleID), Qt::white);
    return image;
}

std::string pngOf(const QImage& image) {
    QBuffer file;
    image.save(&file, "PNG");
    return file.data().toStdString();
}

}  // namespace

std::optional<std::string> iconPath(const Item& app, int side) {
    // The store has no large picture of the iPad's apps.
    if (!app.isApp() || app.withdrawn || (app.hardware == Hardware::iPad && side == large)) {
        return std::nullopt;
    }
    return "/icon/" + std::to_string(app.appleID) + "-" + std::to_string(side) + ".png";
}

std::optional<std::string> IconDesk::picture(std::string_view path) {
    if (const auto known = painted_.find(path); known != painted_.end()) {
        return known->second;
    }
    for (const auto& item : items_) {
        for (const int side : {small, large}) {
            if (iconPath(item, side) == path) {
                return painted_.emplace(path, pngOf(painted(item.appleID, side))).first->second;
            }
        }
    }
    return std::nullopt;
}

}  // namespace vantrell::sample
