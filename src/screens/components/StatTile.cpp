#include "screens/components/StatTile.h"

namespace vantrell {

StatTile statTile(const FigureContext& context, const HeadlineFigure& figure) {
    return {.title = figure.title,
            .money = moneyValue(context, figure.stats.proceedsByCurrency, figure.title),
            .subtitle = figure.subtitle};
}

}  // namespace vantrell
