#pragma once

#include "figures/AggregateStats.h"
#include "figures/EarningsStore.h"
#include "locale/Locale.h"

#include <string>
#include <vector>

#include <QString>

namespace vantrell {

/// One of the figures that tell at a glance what came in.
struct HeadlineFigure {
    QString title;
    QString subtitle;  ///< empty without one
    AggregateStats stats;
    bool operator==(const HeadlineFigure&) const = default;
};

/// Most recent day with data (only if there is one), last 7 days, last 30 days, year to date and all time,
/// over the store's app filter.
[[nodiscard]] std::vector<HeadlineFigure> headlineFigures(const EarningsStore& store, const Locale& locale);

/// Of one app, whatever the filter: newest day (only if there is one), last 30 days, year to date, all time.
[[nodiscard]] std::vector<HeadlineFigure> appHeadlineFigures(const EarningsStore& store, const Locale& locale,
                                                             std::int64_t app);

}  // namespace vantrell
