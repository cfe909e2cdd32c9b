#include "screens/components/ProductRowView.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/UnitsCaption.h"

namespace vantrell {

QString ProductRowView::copyText() const {
    return rowText({title, subtitle, caption, money.text});
}

ProductRowView productRowView(const FigureContext& context, const ProductStat& product) {
    return {.title = shownText(product.title),
            .subtitle = productLabel(product),
            .caption = unitsCaption(context.locale, product.stats, true),
            .money = moneyValue(context, product.stats.proceedsByCurrency, proceedsLabel())};
}

}  // namespace vantrell
