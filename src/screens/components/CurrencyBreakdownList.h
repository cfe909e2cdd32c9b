#pragma once

#include "screens/components/FigureContext.h"
#include "screens/components/MoneyValue.h"

#include <vector>

namespace vantrell {

/// One currency of a figure.
struct BreakdownRow {
    Q_GADGET
    QML_VALUE_TYPE(breakdownRow)
    Q_PROPERTY(QString code MEMBER code)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(QString spokenAmount MEMBER spokenAmount)
    Q_PROPERTY(QString converted MEMBER converted)
    Q_PROPERTY(QString spokenConverted MEMBER spokenConverted)
    Q_PROPERTY(bool hasNoRate MEMBER hasNoRate)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString code;
    QString amount;  ///< exact, in its own currency
    QString spokenAmount;
    QString converted;  ///< in the display currency, empty for that currency itself; "no rate" without one
    QString spokenConverted;
    bool hasNoRate = false;
    [[nodiscard]] QString copyText() const;
    bool operator==(const BreakdownRow&) const = default;
};

/// The largest in the display currency first; without a rate an amount counts as 0 there.
[[nodiscard]] std::vector<BreakdownRow> breakdownRows(const FigureContext& context,
                                                      const AmountsByCurrency& byCurrency);

}  // namespace vantrell
