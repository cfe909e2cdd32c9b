#include "screens/components/CurrencyBreakdown.h"

#include "screens/components/ShownText.h"

namespace vantrell {

CurrencyBreakdown::CurrencyBreakdown(const ScreenParts& parts, QObject* parent) : Screen(parts, parent) {
    setInSight(true);
}

void CurrencyBreakdown::open(const MoneyValue& figure) {
    byCurrency_ = figure.byCurrency ? *figure.byCurrency : AmountsByCurrency();
    refresh();
}

void CurrencyBreakdown::refresh() {
    rows_.show(breakdownRows({store(), locale()}, byCurrency_));
    footer_ = footerText();
    Q_EMIT footerChanged();
}

QString CurrencyBreakdown::footerText() const {
    const auto fetchedAt = store().converter().fetchedAt;
    return fetchedAt ? tr("Converted at today's rates · updated %1")
                           .arg(fromUtf8(locale().relativeTime(*fetchedAt, parts().clock.now(),
                                                               parts().localTime.zone())))
                     : QString();
}

}  // namespace vantrell
