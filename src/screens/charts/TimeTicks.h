#pragma once

#include "figures/Trends.h"
#include "locale/Locale.h"

#include <cstddef>
#include <vector>

#include <QString>

namespace vantrell {

/// A label under one column of a chart.
struct TimeTick {
    std::size_t column = 0;
    QString text;
    bool operator==(const TimeTick&) const = default;
};

using TimeTicks = std::vector<TimeTick>;

/// The labels of a time axis at several densities, the densest first, for whoever draws them to take the
/// first that fits. `starts` are the columns' first days, oldest first: days of a short range are named by
/// date, those of a long one by month.
[[nodiscard]] std::vector<TimeTicks> timeTicks(const std::vector<CivilDate>& starts,
                                               TrendGranularity granularity, const Locale& locale);

}  // namespace vantrell
