#pragma once

#include "screens/HeadlineFigures.h"
#include "screens/components/MoneyValue.h"

namespace vantrell {

/// A headline figure on a card.
struct StatTile {
    Q_GADGET
    QML_VALUE_TYPE(statTile)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(QString subtitle MEMBER subtitle)

  public:
    QString title;
    MoneyValue money;
    QString subtitle;  ///< empty without one
    bool operator==(const StatTile&) const = default;
};

[[nodiscard]] StatTile statTile(const FigureContext& context, const HeadlineFigure& figure);

}  // namespace vantrell
