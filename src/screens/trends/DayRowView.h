#pragma once

#include "figures/Days.h"
#include "screens/components/MoneyValue.h"
#include "screens/trends/StatusBadge.h"

namespace vantrell {

/// One day of a list.
struct DayRowView {
    Q_GADGET
    QML_VALUE_TYPE(dayRowView)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(vantrell::StatusBadge badge MEMBER badge)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString key;  ///< the day key
    QString title;
    StatusBadge badge;
    QString caption;
    MoneyValue money;
    [[nodiscard]] QString copyText() const;
    bool operator==(const DayRowView&) const = default;
};

[[nodiscard]] DayRowView dayRowView(const FigureContext& context, const DayTableRow& row);

}  // namespace vantrell
