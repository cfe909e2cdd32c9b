#include "screens/trends/DayRowView.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/UnitsCaption.h"

namespace vantrell {

QString DayRowView::copyText() const {
    return rowText({title, badge.text, caption, money.text});
}

DayRowView dayRowView(const FigureContext& context, const DayTableRow& row) {
    return {.key = fromUtf8(row.key),
            .title = fromUtf8(context.locale.weekdayDate(row.day)),
            .badge = statusBadge(row.status),
            .caption = unitsCaption(context.locale, row.stats, true),
            .money = moneyValue(context, row.stats.proceedsByCurrency, proceedsLabel())};
}

}  // namespace vantrell
