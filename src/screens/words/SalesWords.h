#pragma once

#include "figures/Exports.h"
#include "figures/Periods.h"
#include "figures/ProductKind.h"
#include "figures/Products.h"
#include "locale/Locale.h"

#include <cstdint>

#include <QString>

namespace vantrell {

// What sales, and the lists of them, are called.

/// What a figure of proceeds is called for whoever hears it.
[[nodiscard]] QString proceedsLabel();
/// Where a period's figures come from, or how many of its days were fetched.
[[nodiscard]] QString sourceLabel(const Locale& locale, const PeriodStat& period);
/// What a product is, and of which app; empty for one that isn't known.
[[nodiscard]] QString productLabel(const ProductStat& product);
/// What a line of a report is about.
[[nodiscard]] QString lineLabel(ProductKind kind, bool isRefund);
/// All apps of a trend that don't stand by themselves.
[[nodiscard]] QString otherAppsLabel();
[[nodiscard]] QString exportLabel(ExportKind kind);

/// By which a text chooses between one and many.
[[nodiscard]] int pluralNumber(std::int64_t count);

}  // namespace vantrell
