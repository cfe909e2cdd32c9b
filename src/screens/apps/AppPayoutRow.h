#pragma once

#include "figures/Payouts.h"
#include "screens/apps/ColumnTitles.h"
#include "screens/components/MoneyValue.h"

namespace vantrell {

/// What was paid for one app.
struct AppPayoutRow {
    Q_GADGET
    QML_VALUE_TYPE(appPayoutRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(vantrell::MoneyValue currentFiscalYear MEMBER currentFiscalYear)
    Q_PROPERTY(vantrell::MoneyValue allTime MEMBER allTime)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    MoneyValue currentFiscalYear;
    MoneyValue allTime;
    [[nodiscard]] QString copyText() const;
    bool operator==(const AppPayoutRow&) const = default;
};

[[nodiscard]] ColumnTitles appPayoutTitles();
[[nodiscard]] AppPayoutRow appPayoutRow(const FigureContext& context, const AppPayout& payout);

}  // namespace vantrell
