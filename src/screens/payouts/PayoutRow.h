#pragma once

#include "calendar/ReportCalendar.h"
#include "figures/Payouts.h"
#include "screens/components/MoneyValue.h"

#include <QVariantList>

namespace vantrell {

/// What was paid for one fiscal period; opened, it shows each currency.
struct PayoutRow {
    Q_GADGET
    QML_VALUE_TYPE(payoutRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString dates MEMBER dates)
    Q_PROPERTY(QString units MEMBER units)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(bool isExpanded MEMBER isExpanded)
    Q_PROPERTY(QString spokenState READ spokenState)
    Q_PROPERTY(QVariantList currencies MEMBER currencies)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    QString dates;  ///< empty unless both are known
    QString units;
    MoneyValue money;
    bool isExpanded = false;
    QVariantList currencies;  ///< each a BreakdownRow; none while closed
    [[nodiscard]] QString copyText() const;
    [[nodiscard]] QString spokenState() const;
    bool operator==(const PayoutRow&) const = default;
};

[[nodiscard]] PayoutRow payoutRow(const FigureContext& context, const FinancePeriodStat& period,
                                  bool isExpanded);

}  // namespace vantrell
