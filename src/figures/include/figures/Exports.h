#pragma once

#include "currency/CurrencyConverter.h"
#include "figures/EarningsStore.h"
#include "figures/Periods.h"
#include "figures/Products.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

// Figures as comma-separated text for a spreadsheet: a line of headings, then a line a record, each ended by
// a line feed. All cover all apps. The converted figures are in the display currency of the moment; the last
// column of each has the exact amounts. The locale plays no part.

enum class ExportKind { days, months, years, payouts, products };
inline constexpr std::array exportKinds{ExportKind::days, ExportKind::months, ExportKind::years,
                                        ExportKind::payouts, ExportKind::products};

/// Without an extension.
[[nodiscard]] std::string_view exportFileName(ExportKind kind);
/// The whole file.
[[nodiscard]] std::string exportText(const EarningsStore& store, ExportKind kind);

/// The last `days` days up to yesterday, at least that one; newest first, also those without lines.
[[nodiscard]] std::string exportDays(const EarningsStore& store, int days);
/// In the order of `periods`.
[[nodiscard]] std::string exportPeriods(const EarningsStore& store, const std::vector<PeriodStat>& periods);
[[nodiscard]] std::string exportPayouts(const EarningsStore& store);
[[nodiscard]] std::string exportProducts(const EarningsStore& store);

// The words of the files, which are English in every language.
[[nodiscard]] std::string sourceText(const PeriodStat& period);
/// What a product is, and of which app.
[[nodiscard]] std::string formText(const ProductStat& product);

/// The columns that all exports but the payouts share.
[[nodiscard]] std::vector<std::string> statsHeader(const CurrencyConverter& converter);
[[nodiscard]] std::vector<std::string> statsFields(const CurrencyConverter& converter,
                                                   const AggregateStats& stats);

}  // namespace vantrell
