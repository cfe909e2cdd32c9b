#include "sample/IconGlyph.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>

#include <QPolygonF>
#include <QTransform>

namespace vantrell::sample {

namespace {

QPainterPath disc(double x, double y, double radius) {
    QPainterPath path;
    path.addEllipse({x, y}, radius, radius);
    return path;
}

QPainterPath plate(double x, double y, double width, double height, double corner = 14) {
    QPainterPath path;
    path.addRoundedRect(x, y, width, height, corner, corner);
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> corners) {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(corners)));
    path.closeSubpath();
    return path;
}

QPainterPath outlined(const QPainterPath& line, double width) {
    QPainterPathStroker pen;
    pen.setWidth(width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen.createStroke(line);
}

/// `part` as often as `count`, turned around the origin.
QPainterPath around(const QPainterPath& part, int count) {
    QPainterPath path;
    for (int turn = 0; turn < count; ++turn) {
        path = path.united(QTransform().rotate(360.0 * turn / count).map(part));
    }
    return path;
}

QPainterPath wave(double y) {
    QPainterPath line({-80, y});
    line.cubicTo(-40, y - 50, -40, y + 50, 0, y);
    line.cubicTo(40, y - 50, 40, y + 50, 80, y);
    return outlined(line, 17);
}

QPainterPath waves() {
    return wave(-45) | wave(0) | wave(45);
}

QPainterPath cup() {
    QPainterPath steam({-15, -85});
    steam.cubicTo(15, -65, -35, -50, -5, -30);
    return plate(-75, -10, 120, 85, 35) | outlined(disc(45, 25, 27), 15) | outlined(steam, 14);
}

QPainterPath sun() {
    return disc(0, 0, 42) | around(plate(-8, -95, 16, 32, 8), 8);
}

QPainterPath cells() {
    QPainterPath cell;
    for (int corner = 0; corner < 6; ++corner) {
        const double angle = std::numbers::pi / 3 * corner;
        const QPointF point(30 * std::cos(angle), 30 * std::sin(angle));
        corner == 0 ? cell.moveTo(point) : cell.lineTo(point);
    }
    cell.closeSubpath();
    return cell | around(cell.translated(0, -60), 6);
}

QPainterPath stack() {
    const auto sheet = polygon({{0, -40}, {85, 0}, {0, 40}, {-85, 0}}).translated(0, -35);
    const auto below = sheet - sheet.translated(0, -24);
    return sheet | below.translated(0, 38) | below.translated(0, 76);
}

QPainterPath mountains() {
    const auto far = polygon({{30, -35}, {95, 65}, {-30, 65}});
    const auto near = polygon({{-30, -70}, {50, 65}, {-95, 65}});
    return near | (far - outlined(near, 16)) | disc(60, -60, 17);
}

QPainterPath stops() {
    QPainterPath line({-70, 55});
    line.lineTo(-15, 55);
    line.lineTo(20, -50);
    line.lineTo(70, -50);
    return outlined(line, 16) | disc(-70, 55, 22) | disc(70, -50, 22) | disc(2, 2, 22);
}

QPainterPath tiles() {
    return around(plate(9, 9, 62, 62, 18), 4);
}

QPainterPath blossom() {
    QPainterPath petal;
    petal.addEllipse({0, -52}, 27, 38);
    return (around(petal, 5) - disc(0, 0, 24)) | disc(0, 0, 14);
}

QPainterPath grid() {
    QPainterPath path;
    for (const double x : {-75, -22, 31}) {
        for (const double y : {-75, -22, 31}) {
            path |= plate(x, y, 44, 44, 10);
        }
    }
    return path - disc(0, 0, 12) - disc(53, -53, 12) - disc(-53, 53, 12);
}

QPainterPath bars() {
    return plate(-80, 15, 32, 55) | plate(-32, -20, 32, 90) | plate(16, -75, 32, 145) |
           plate(64, -45, 32, 115);
}

QPainterPath moon() {
    return (disc(-5, 5, 80) - disc(35, -20, 68)) | disc(50, -50, 13) | disc(25, -5, 8);
}

QPainterPath cards() {
    const auto back = QTransform().rotate(-14).map(plate(-62, -72, 85, 120));
    const auto front = QTransform().rotate(10).map(plate(-20, -50, 85, 120));
    return (back - outlined(front, 14) - front) | front;
}

using Glyph = QPainterPath (*)();
constexpr std::array<Glyph, 13> glyphs{waves, cup,     sun,  cells, stack, mountains, stops,
                                       tiles, blossom, grid, bars,  moon,  cards};

}  // namespace

QPainterPath iconGlyph(std::int64_t appleID) {
    return glyphs[static_cast<std::size_t>(appleID - 9900000101) % glyphs.size()]();
}

}  // namespace vantrell::sample
