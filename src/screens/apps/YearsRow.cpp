#include "screens/apps/YearsRow.h"

#include "screens/apps/MoneyCell.h"
#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"

#include <QCoreApplication>

namespace vantrell {
namespace {

using YearValues = std::map<std::string, double, std::less<>>;

YearCell yearCell(const FigureContext& context, double value, const QString& year) {
    const auto amount = Decimal::fromShortestText(value);
    if (!amount || amount->isZero()) {
        return {.text = noFigure(), .spoken = year + QStringLiteral(", —")};
    }
    const std::string& currency = context.store.displayCurrency();
    return {.text = shownText(context.locale.wholeMoney(*amount, currency)),
            .spoken = year + QStringLiteral(", ") + shownText(context.locale.spokenMoney(*amount, currency)),
            .isEmpty = false};
}

}  // namespace

ColumnTitles yearTitles(const FigureContext& context, const std::vector<std::string>& years) {
    const std::string current = context.store.calendar().currentYearLabel();
    ColumnTitles titles{.name = QCoreApplication::translate("AppsView", "App"), .columns = {}};
    for (const std::string& year : years) {
        const QString shown = shownText(year);
        titles.columns +=
            year == current ? QCoreApplication::translate("AppsView", "%1 (YTD)").arg(shown) : shown;
    }
    return titles;
}

QString YearsRow::copyText() const {
    QStringList texts{title};
    for (const QVariant& cell : cells) {
        texts += cell.value<YearCell>().text;
    }
    return rowText(texts);
}

YearsRow yearsRow(const FigureContext& context, const AppInfo& app, const YearMatrix& matrix) {
    YearsRow row{.title = shownText(app.title), .cells = {}};
    const auto known = matrix.byApp.find(app.id);
    const YearValues values = known == matrix.byApp.end() ? YearValues() : known->second;
    for (const std::string& year : matrix.years) {
        const auto value = values.find(year);
        row.cells += QVariant::fromValue(
            yearCell(context, value == values.end() ? 0 : value->second, shownText(year)));
    }
    return row;
}

}  // namespace vantrell
