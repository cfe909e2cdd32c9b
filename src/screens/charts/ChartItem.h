#pragma once

#include "screens/charts/Chart.h"
#include "screens/charts/ChartMarks.h"

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>

namespace vantrell {

/// Draws the bars, rules, grid and axis labels of a chart, crisp at any scale. What follows the pointer lies
/// above it in items of its own, so that nothing is drawn anew while the selection moves.
class ChartItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vantrell::Chart* chart READ chart WRITE setChart NOTIFY chartChanged)
    Q_PROPERTY(QRectF plot READ plot NOTIFY plotChanged)
    Q_PROPERTY(double selectedX READ selectedX NOTIFY selectedXChanged)
    Q_PROPERTY(bool isDark MEMBER isDark_ NOTIFY lookChanged)
    Q_PROPERTY(QColor proceedsColor MEMBER proceedsColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor refundsColor MEMBER refundsColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor missingColor MEMBER missingColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor zeroColor MEMBER zeroColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor gridColor MEMBER gridColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor labelColor MEMBER labelColor_ NOTIFY lookChanged)
    Q_PROPERTY(QFont labelFont READ labelFont WRITE setLabelFont NOTIFY labelFontChanged)

  public:
    explicit ChartItem(QQuickItem* parent = nullptr);

    [[nodiscard]] Chart* chart() const { return chart_; }
    void setChart(Chart* chart);
    /// Where the bars stand, without the labels around.
    [[nodiscard]] QRectF plot() const { return frame_.plot; }
    /// The middle of the selected column.
    [[nodiscard]] double selectedX() const;
    [[nodiscard]] QFont labelFont() const { return labelFont_; }
    void setLabelFont(const QFont& font);

    /// The place of the column under a point of the plot, or -1.
    Q_INVOKABLE int columnAt(const QPointF& point) const;

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void chartChanged();
    void plotChanged();
    void selectedXChanged();
    void lookChanged();
    void labelFontChanged();

  protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

  private:
    void forgetChart();
    void layOut();
    [[nodiscard]] ChartFrame frameOf(const ChartContent& content) const;
    [[nodiscard]] QColor inkOf(const BarMark& bar) const;
    void paintGrid(QPainter& painter) const;
    void paintTicks(QPainter& painter) const;
    void paintRules(QPainter& painter) const;
    void paintBars(QPainter& painter) const;

    Chart* chart_ = nullptr;
    ChartFrame frame_;
    ChartMarks marks_;
    QFont labelFont_;
    bool isDark_ = false;
    QColor proceedsColor_;
    QColor refundsColor_;
    QColor missingColor_;
    QColor zeroColor_;
    QColor gridColor_;
    QColor labelColor_;
};

}  // namespace vantrell
