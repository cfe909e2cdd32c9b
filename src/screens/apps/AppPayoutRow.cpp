#include "screens/apps/AppPayoutRow.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"

#include <QCoreApplication>

namespace vantrell {

ColumnTitles appPayoutTitles() {
    return {.name = QCoreApplication::translate("AppsView", "App"),
            .columns = {QCoreApplication::translate("AppsView", "This fiscal year"),
                        QCoreApplication::translate("AppsView", "All time")}};
}

QString AppPayoutRow::copyText() const {
    return rowText({title, currentFiscalYear.text, allTime.text});
}

AppPayoutRow appPayoutRow(const FigureContext& context, const AppPayout& payout) {
    const QStringList columns = appPayoutTitles().columns;
    return {.title = shownText(payout.app.title),
            .currentFiscalYear = moneyValue(context, payout.currentFiscalYear, columns[0]),
            .allTime = moneyValue(context, payout.allTime, columns[1])};
}

}  // namespace vantrell
