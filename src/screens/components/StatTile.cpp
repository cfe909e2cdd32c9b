#include "screens/components/StatTile.h"

#include "screens/components/ShownText.h"

namespace vantrell {

StatTile statTile(const FigureContext& context, const HeadlineFigure& figure) {
    const QString title = fromUtf8(figure.title);
    return {.title = title,
            .money = moneyValue(context, figure.stats.proceedsByCurrency, title),
            .subtitle = shownText(figure.subtitle.value_or(""))};
}

}  // namespace vantrell
