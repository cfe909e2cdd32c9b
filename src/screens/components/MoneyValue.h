#pragma once

#include "figures/AggregateStats.h"
#include "screens/components/FigureContext.h"

#include <memory>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// Amounts of several currencies as one figure: their total in the display currency.
struct MoneyValue {
    Q_GADGET
    QML_VALUE_TYPE(moneyValue)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(QString warning MEMBER warning)

  public:
    QString text;     ///< such as "$1,234.56"
    QString spoken;   ///< with what it is, such as "Proceeds, 1,234.56 US dollars"
    QString warning;  ///< which currencies are not in the total for want of a rate; empty if all are
    /// What a breakdown shows; null if there is none. Shared, since QML copies a value whenever it reads one
    /// of its properties.
    std::shared_ptr<const AmountsByCurrency> byCurrency;
    bool operator==(const MoneyValue& other) const;
};

/// `label` says what the figure is, to whoever hears it.
[[nodiscard]] MoneyValue moneyValue(const FigureContext& context, const AmountsByCurrency& byCurrency,
                                    const QString& label);

}  // namespace vantrell
