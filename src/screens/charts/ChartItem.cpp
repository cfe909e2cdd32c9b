#include "screens/charts/ChartItem.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QQuickWindow>

namespace vantrell {
namespace {

constexpr double barRadius = 3;
// On narrower bars round corners can't be seen, and cost most of the time.
constexpr double leastRoundedWidth = 5;
constexpr double ruleWidth = 1.5;
constexpr double labelGap = 8;
constexpr double tickGap = 24;

/// Where a label under a column begins, kept within the item.
double tickLeft(double center, double textWidth, double itemWidth) {
    return std::clamp(center - textWidth / 2, 0.0, std::max(0.0, itemWidth - textWidth));
}

bool fits(const TimeTicks& ticks, const ChartFrame& frame, const QFontMetricsF& metrics, double itemWidth) {
    double free = -tickGap;
    for (const TimeTick& tick : ticks) {
        const double width = metrics.horizontalAdvance(tick.text);
        const double left = tickLeft(frame.center(tick.column), width, itemWidth);
        if (left < free + tickGap) {
            return false;
        }
        free = left + width;
    }
    return true;
}

}  // namespace

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &ChartItem::lookChanged, this, [this] { update(); });
    connect(this, &ChartItem::plotChanged, this, &ChartItem::selectedXChanged);
}

void ChartItem::setChart(Chart* chart) {
    if (chart == chart_) {
        return;
    }
    if (chart_ != nullptr) {
        chart_->disconnect(this);
    }
    chart_ = chart;
    if (chart != nullptr) {
        connect(chart, &QObject::destroyed, this, &ChartItem::forgetChart);
        connect(chart, &Chart::contentChanged, this, &ChartItem::layOut);
        connect(chart, &Chart::selectionChanged, this, &ChartItem::selectedXChanged);
    }
    Q_EMIT chartChanged();
    layOut();
}

// A screen's model may go before its items do.
void ChartItem::forgetChart() {
    chart_ = nullptr;
    Q_EMIT chartChanged();
    layOut();
}

double ChartItem::selectedX() const {
    const bool isSelected = chart_ != nullptr && chart_->selection() >= 0 && frame_.columns > 0;
    return isSelected ? frame_.center(static_cast<std::size_t>(chart_->selection())) : 0;
}

void ChartItem::setLabelFont(const QFont& font) {
    if (font != labelFont_) {
        labelFont_ = font;
        Q_EMIT labelFontChanged();
        layOut();
    }
}

int ChartItem::columnAt(const QPointF& point) const {
    const bool isInPlot = point.y() >= frame_.plot.top() && point.y() < frame_.plot.bottom();
    const auto column = isInPlot ? frame_.columnAt(point.x()) : std::nullopt;
    return column ? static_cast<int>(*column) : -1;
}

void ChartItem::paint(QPainter* painter) {
    if (chart_ == nullptr || frame_.plot.isEmpty()) {
        return;
    }
    painter->setFont(labelFont_);
    paintGrid(*painter);
    paintTicks(*painter);
    paintRules(*painter);
    paintBars(*painter);
}

void ChartItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        layOut();
    }
}

void ChartItem::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) {
        layOut();
    }
}

void ChartItem::layOut() {
    const QRectF before = frame_.plot;
    frame_ = chart_ == nullptr ? ChartFrame() : frameOf(chart_->content());
    marks_ = chart_ == nullptr ? ChartMarks() : chartMarks(chart_->content(), frame_);
    if (frame_.plot != before) {
        Q_EMIT plotChanged();
    }
    Q_EMIT selectedXChanged();
    update();
}

ChartFrame ChartItem::frameOf(const ChartContent& content) const {
    const QFontMetricsF metrics(labelFont_);
    double labels = 0;
    for (const QString& amount : content.amounts) {
        labels = std::max(labels, metrics.horizontalAdvance(amount));
    }
    const double left = std::ceil(labels) + labelGap;
    const double top = std::ceil(metrics.height() / 2);
    const double bottom = std::ceil(metrics.height()) + labelGap;
    const double scale = window() == nullptr ? 1 : window()->effectiveDevicePixelRatio();
    const QRectF plot(left, top, width() - left, height() - top - bottom);
    return {plot.isValid() ? plot : QRectF(), content.columns.size(), 1 / scale};
}

QColor ChartItem::inkOf(const BarMark& bar) const {
    switch (bar.ink) {
        case ChartInk::proceeds:
            return proceedsColor_;
        case ChartInk::refunds:
            return refundsColor_;
        case ChartInk::series:
            return isDark_ ? bar.color.dark : bar.color.light;
    }
    return {};
}

void ChartItem::paintGrid(QPainter& painter) const {
    const QFontMetricsF metrics(labelFont_);
    for (std::size_t mark = 0; mark < marks_.steps.size(); ++mark) {
        const double y = marks_.steps[mark];
        painter.fillRect(QRectF(frame_.plot.left(), y, frame_.plot.width(), frame_.pixel), gridColor_);
        painter.setPen(labelColor_);
        const QRectF area(0, y - metrics.height() / 2, frame_.plot.left() - labelGap, metrics.height());
        painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                         chart_->content().amounts.value(static_cast<qsizetype>(mark)));
    }
    painter.fillRect(QRectF(frame_.plot.left(), marks_.zero, frame_.plot.width(), 1), zeroColor_);
}

void ChartItem::paintTicks(QPainter& painter) const {
    const auto& levels = chart_->content().ticks;
    const QFontMetricsF metrics(labelFont_);
    const auto ticks = std::ranges::find_if(
        levels, [&](const TimeTicks& level) { return fits(level, frame_, metrics, width()); });
    if (ticks == levels.end()) {
        return;
    }
    painter.setPen(labelColor_);
    for (const TimeTick& tick : *ticks) {
        const double textWidth = metrics.horizontalAdvance(tick.text);
        const double left = tickLeft(frame_.center(tick.column), textWidth, width());
        painter.drawText(QPointF(left, frame_.plot.bottom() + labelGap + metrics.ascent()), tick.text);
    }
}

void ChartItem::paintRules(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const double rule : marks_.rules) {
        painter.fillRect(QRectF(rule - ruleWidth / 2, frame_.plot.top(), ruleWidth, frame_.plot.height()),
                         missingColor_);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void ChartItem::paintBars(QPainter& painter) const {
    const bool isRounded = frame_.barWidth() >= leastRoundedWidth;
    painter.setRenderHint(QPainter::Antialiasing, isRounded);
    painter.setPen(Qt::NoPen);
    for (const BarMark& bar : marks_.bars) {
        if (isRounded) {
            const double radius = std::min({barRadius, bar.area.width() / 2, bar.area.height() / 2});
            painter.setBrush(inkOf(bar));
            painter.drawRoundedRect(bar.area, radius, radius);
        } else {
            painter.fillRect(bar.area, inkOf(bar));
        }
    }
}

}  // namespace vantrell
