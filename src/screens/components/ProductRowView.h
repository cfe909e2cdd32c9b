#pragma once

#include "figures/Products.h"
#include "screens/components/MoneyValue.h"

namespace vantrell {

/// What one app or product sold, as a row.
struct ProductRowView {
    Q_GADGET
    QML_VALUE_TYPE(productRowView)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString subtitle MEMBER subtitle)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(vantrell::MoneyValue money MEMBER money)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    QString subtitle;
    QString caption;
    MoneyValue money;
    [[nodiscard]] QString copyText() const;
    bool operator==(const ProductRowView&) const = default;
};

[[nodiscard]] ProductRowView productRowView(const FigureContext& context, const ProductStat& product);

}  // namespace vantrell
