#include "screens/apps/MoneyCell.h"

namespace vantrell {

QString noFigure() {
    return QStringLiteral("—");
}

MoneyCell moneyCell(const FigureContext& context, const AggregateStats& stats, const QString& column) {
    if (stats.proceedsByCurrency.empty()) {
        return {.money = {.text = noFigure(), .spoken = column + QStringLiteral(", —")}};
    }
    return {.money = moneyValue(context, stats.proceedsByCurrency, column), .isEmpty = false};
}

}  // namespace vantrell
