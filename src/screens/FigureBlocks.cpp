#include "screens/FigureBlocks.h"

#include "screens/components/PeriodRowView.h"
#include "screens/components/ProductRowView.h"
#include "screens/words/DayText.h"

namespace vantrell {

void addYears(BlockBuilder& rows, const FigureContext& context, const std::vector<PeriodStat>& years) {
    rows.addEach(RowKind::Period, years,
                 [context](const PeriodStat& year) { return periodRowView(context, year); });
}

void addMonths(BlockBuilder& rows, const FigureContext& context, const std::vector<PeriodStat>& months) {
    rows.addEach(RowKind::Period, months, [context](const PeriodStat& month) {
        return periodRowView(context, month, monthKeyLabel(context.locale, month.label));
    });
}

void addProducts(BlockBuilder& rows, const FigureContext& context, const std::vector<ProductStat>& products) {
    rows.addEach(RowKind::Product, products,
                 [context](const ProductStat& product) { return productRowView(context, product); });
}

}  // namespace vantrell
