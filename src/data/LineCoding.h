#pragma once

#include "Layouts.h"
#include "LineTexts.h"

#include <string>

namespace vantrell {

/// Rows as lines and back. `texts` serves one report, in its order.
using SalesTexts = LineTexts<std::tuple_size_v<decltype(Layout<SalesLine>::shown)>>;
using FinanceTexts = LineTexts<std::tuple_size_v<decltype(Layout<FinanceLine>::shown)>>;
[[nodiscard]] SalesLine encoded(const SalesRowView& row, SalesTexts& texts, OfferDictionary& offers);
[[nodiscard]] FinanceLine encoded(const ParsedFinanceRow& row, FinanceTexts& texts);
[[nodiscard]] ParsedSalesRow decoded(const SalesLine& line, const TextDictionary& texts,
                                     const OfferDictionary& offers);
[[nodiscard]] ParsedFinanceRow decoded(const FinanceLine& line, const TextDictionary& texts);

}  // namespace vantrell
