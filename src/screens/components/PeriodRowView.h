#pragma once

#include "figures/Periods.h"
#include "screens/components/MoneyValue.h"

#include <optional>

namespace vantrell {

/// One week, month or year of a list.
struct PeriodRowView {
    Q_GADGET
    QML_VALUE_TYPE(periodRowView)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    QString caption;
    QString note;
    MoneyValue money;
    [[nodiscard]] QString copyText() const;
    bool operator==(const PeriodRowView&) const = default;
};

/// `titleOverride` stands in for the label.
[[nodiscard]] PeriodRowView periodRowView(const FigureContext& context, const PeriodStat& period,
                                          const std::optional<QString>& titleOverride = std::nullopt);

}  // namespace vantrell
