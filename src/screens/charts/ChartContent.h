#pragma once

#include "screens/charts/ChartScale.h"
#include "screens/charts/SeriesColor.h"
#include "screens/charts/TimeTicks.h"

#include <vector>

#include <QStringList>

namespace vantrell {

enum class ChartInk { proceeds, refunds, series };

/// One bar; those of a column stack, away from zero.
struct ChartBar {
    double value = 0;
    ChartInk ink = ChartInk::proceeds;
    SeriesColor color;  ///< of a series
    bool operator==(const ChartBar&) const = default;
};

struct ChartColumn {
    CivilDate start;
    bool isFetched = false;  ///< without, a rule stands in place of the bars
    std::vector<ChartBar> bars;
    bool operator==(const ChartColumn&) const = default;
};

/// Everything that a chart draws, but for its size and colours.
struct ChartContent {
    std::vector<ChartColumn> columns;  ///< oldest first
    ChartScale scale;
    QStringList amounts;  ///< beside each mark of the scale
    std::vector<TimeTicks> ticks;
    bool operator==(const ChartContent&) const = default;
};

}  // namespace vantrell
