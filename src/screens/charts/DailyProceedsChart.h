#pragma once

#include "figures/Days.h"
#include "screens/charts/Chart.h"

#include <vector>

namespace vantrell {

/// One bar a day: what came in, and what was refunded below zero.
class DailyProceedsChart final : public vantrell::Chart {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")

  public:
    DailyProceedsChart(const FigureContext& context, QString title, QObject* parent = nullptr);

    /// Oldest first.
    void show(std::vector<DayPoint> points);

  private:
    [[nodiscard]] ChartAnnotation annotationOf(std::size_t column) const override;
    [[nodiscard]] Sums sumsOf(std::size_t column) const override;

    std::vector<DayPoint> points_;
};

}  // namespace vantrell
