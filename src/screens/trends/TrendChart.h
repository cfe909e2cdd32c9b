#pragma once

#include "figures/Trends.h"
#include "screens/charts/Chart.h"

#include <vector>

namespace vantrell {

/// One column a day, week or month, stacked by app.
class TrendChart final : public vantrell::Chart {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")

  public:
    TrendChart(const FigureContext& context, QString title, QObject* parent = nullptr);

    /// `points` oldest first. Without series colours all proceeds look alike.
    void show(std::vector<TrendPoint> points, TrendGranularity granularity, bool usesSeriesColors);

    /// Only a column that is a day.
    [[nodiscard]] bool opensDays() const override;

  private:
    [[nodiscard]] ChartColumn columnOf(const TrendPoint& point) const;
    [[nodiscard]] ChartAnnotation annotationOf(std::size_t column) const override;
    [[nodiscard]] std::vector<ChartAmount> sliceLines(const TrendPoint& point) const;
    [[nodiscard]] Sums sumsOf(std::size_t column) const override;

    std::vector<TrendPoint> points_;
    TrendGranularity granularity_ = TrendGranularity::day;
    bool usesSeriesColors_ = true;
};

}  // namespace vantrell
