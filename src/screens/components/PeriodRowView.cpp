#include "screens/components/PeriodRowView.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/UnitsCaption.h"

namespace vantrell {

QString PeriodRowView::copyText() const {
    return rowText({title, caption, note, money.text});
}

PeriodRowView periodRowView(const FigureContext& context, const PeriodStat& period,
                            const std::optional<QString>& titleOverride) {
    return {.title = titleOverride ? *titleOverride : shownText(period.label),
            .caption = unitsCaption(context.locale, period.stats, false),
            .note = sourceLabel(context.locale, period),
            .money = moneyValue(context, period.stats.proceedsByCurrency, proceedsLabel())};
}

}  // namespace vantrell
