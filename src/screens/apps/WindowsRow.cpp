#include "screens/apps/WindowsRow.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/UnitsCaption.h"

#include <QCoreApplication>

namespace vantrell {
namespace {

template <typename Entry>
WindowsRow withCells(const FigureContext& context, const Entry& entry) {
    const QStringList columns = windowTitles().columns;
    WindowsRow row;
    row.last30 = moneyCell(context, entry.last30, columns[0]);
    row.last365 = moneyCell(context, entry.last365, columns[1]);
    row.ytd = moneyCell(context, entry.ytd, columns[2]);
    row.allTime = moneyCell(context, entry.allTime, columns[3]);
    return row;
}

}  // namespace

ColumnTitles windowTitles() {
    return {.name = QCoreApplication::translate("AppsView", "App"),
            .columns = {QCoreApplication::translate("AppsView", "30 days"),
                        QCoreApplication::translate("AppsView", "365 days"),
                        QCoreApplication::translate("AppsView", "YTD"),
                        QCoreApplication::translate("AppsView", "All time")}};
}

QString WindowsRow::copyText() const {
    return rowText(
        {title, caption, last30.money.text, last365.money.text, ytd.money.text, allTime.money.text});
}

WindowsRow windowsRow(const FigureContext& context, const AppTableEntry& entry) {
    WindowsRow row = withCells(context, entry);
    row.appID = entry.app.id;
    row.title = shownText(entry.app.title);
    row.caption = unitsCaption(context.locale, entry.allTime, true);
    return row;
}

WindowsRow windowsRow(const FigureContext& context, const ProductWindowStat& product) {
    WindowsRow row = withCells(context, product);
    row.appID = product.appID;
    row.title = product.isAppPurchases ? QCoreApplication::translate("AppsView", "Purchases")
                                       : shownText(product.title);
    return row;
}

}  // namespace vantrell
