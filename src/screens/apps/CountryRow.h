#pragma once

#include "figures/Products.h"
#include "screens/components/FigureContext.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What customers of one country brought in.
struct CountryRow {
    Q_GADGET
    QML_VALUE_TYPE(countryRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(QString spokenAmount MEMBER spokenAmount)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;   ///< the country's name
    QString amount;  ///< in the display currency
    QString spokenAmount;
    [[nodiscard]] QString copyText() const;
    bool operator==(const CountryRow&) const = default;
};

[[nodiscard]] CountryRow countryRow(const FigureContext& context, const CountryStat& country);

}  // namespace vantrell
