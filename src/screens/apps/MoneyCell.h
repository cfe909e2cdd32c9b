#pragma once

#include "screens/components/MoneyValue.h"

namespace vantrell {

/// A figure of a table, or that there is none.
struct MoneyCell {
    Q_GADGET
    QML_VALUE_TYPE(moneyCell)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(bool isEmpty MEMBER isEmpty)

  public:
    MoneyValue money;  ///< with "—" as its text if empty
    bool isEmpty = true;
    bool operator==(const MoneyCell&) const = default;
};

/// "—", where a table has nothing to tell.
[[nodiscard]] QString noFigure();

/// Empty if no money moved. `column` says what the figure is, to whoever hears it.
[[nodiscard]] MoneyCell moneyCell(const FigureContext& context, const AggregateStats& stats,
                                  const QString& column);

}  // namespace vantrell
