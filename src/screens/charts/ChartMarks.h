#pragma once

#include "screens/charts/ChartContent.h"

#include <optional>
#include <utility>
#include <vector>

#include <QRectF>

namespace vantrell {

/// Where the columns of a chart stand.
struct ChartFrame {
    QRectF plot;
    std::size_t columns = 0;
    double pixel = 1;  ///< the size of one pixel of the display, at which bars begin and end

    [[nodiscard]] double center(std::size_t column) const;
    /// Absent outside of the plot.
    [[nodiscard]] std::optional<std::size_t> columnAt(double x) const;
    /// Whether columns are too narrow for gaps between them.
    [[nodiscard]] bool isDense() const;
    [[nodiscard]] double barWidth() const;
    /// The left and right end of a column's bars.
    [[nodiscard]] std::pair<double, double> barEnds(std::size_t column) const;
    [[nodiscard]] double snapped(double place) const;
};

struct BarMark {
    QRectF area;
    ChartInk ink = ChartInk::proceeds;
    SeriesColor color;
};

/// What is drawn, in places of the plot.
struct ChartMarks {
    double zero = 0;
    std::vector<double> steps;  ///< for each mark of the scale
    std::vector<double> rules;  ///< for each column that was not fetched
    std::vector<BarMark> bars;
};

[[nodiscard]] ChartMarks chartMarks(const ChartContent& content, const ChartFrame& frame);

}  // namespace vantrell
