#include "screens/components/ProductRowView.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/components/UnitsCaption.h"

namespace vantrell {

QString ProductRowView::copyText() const {
    return rowText({title, subtitle, caption, money.text});
}

ProductRowView productRowView(const FigureContext& context, const ProductStat& product) {
    return {.title = shownText(product.title),
            .subtitle = shownText(product.subtitle),
            .caption = unitsCaption(context.locale, product.stats, true),
            .money = moneyValue(context, product.stats.proceedsByCurrency, proceedsLabel())};
}

}  // namespace vantrell
