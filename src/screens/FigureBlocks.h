#pragma once

#include "figures/Periods.h"
#include "figures/Products.h"
#include "screens/BlockList.h"
#include "screens/components/FigureContext.h"

#include <vector>

namespace vantrell {

// Lists that several screens hold. Each adds rows to the present block; the figures must not move as long as
// the rows are shown.

void addYears(BlockBuilder& rows, const FigureContext& context, const std::vector<PeriodStat>& years);
void addMonths(BlockBuilder& rows, const FigureContext& context, const std::vector<PeriodStat>& months);
void addProducts(BlockBuilder& rows, const FigureContext& context, const std::vector<ProductStat>& products);

}  // namespace vantrell
