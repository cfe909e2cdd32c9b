#pragma once

#include "figures/SalesRowLite.h"
#include "locale/Locale.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// One line of a daily report.
struct LineItemRow {
    Q_GADGET
    QML_VALUE_TYPE(lineItemRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString price MEMBER price)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(QString spokenAmount MEMBER spokenAmount)
    Q_PROPERTY(bool isMuted MEMBER isMuted)
    Q_PROPERTY(bool isRefund MEMBER isRefund)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    QString caption;  ///< kind, country and product type
    QString price;    ///< units and what the customer paid for one
    QString amount;   ///< the proceeds of all units, in their own currency
    QString spokenAmount;
    bool isMuted = false;  ///< moved no money
    bool isRefund = false;
    [[nodiscard]] QString copyText() const;
    bool operator==(const LineItemRow&) const = default;
};

[[nodiscard]] LineItemRow lineItemRow(const Locale& locale, const SalesRowLite& row);

}  // namespace vantrell
