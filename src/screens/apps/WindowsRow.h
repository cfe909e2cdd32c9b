#pragma once

#include "figures/Apps.h"
#include "figures/Products.h"
#include "screens/apps/ColumnTitles.h"
#include "screens/apps/MoneyCell.h"

namespace vantrell {

/// One app or product in the table of proceeds.
struct WindowsRow {
    Q_GADGET
    QML_VALUE_TYPE(windowsRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(bool isBanded MEMBER isBanded)
    Q_PROPERTY(bool startsEntry MEMBER startsEntry)
    Q_PROPERTY(bool endsEntry MEMBER endsEntry)
    Q_PROPERTY(vantrell::MoneyCell last30 MEMBER last30)
    Q_PROPERTY(vantrell::MoneyCell last365 MEMBER last365)
    Q_PROPERTY(vantrell::MoneyCell ytd MEMBER ytd)
    Q_PROPERTY(vantrell::MoneyCell allTime MEMBER allTime)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    std::int64_t appID = 0;  ///< of the app that the row belongs to
    QString title;
    QString caption;  ///< empty for a product
    QString icon;     ///< where an Image finds it; empty if that isn't known
    // An app and its products are one entry of the table.
    bool isBanded = false;
    bool startsEntry = true;
    bool endsEntry = true;
    MoneyCell last30;
    MoneyCell last365;
    MoneyCell ytd;
    MoneyCell allTime;
    [[nodiscard]] QString copyText() const;
    bool operator==(const WindowsRow&) const = default;
};

[[nodiscard]] ColumnTitles windowTitles();
/// Without icon and place.
[[nodiscard]] WindowsRow windowsRow(const FigureContext& context, const AppTableEntry& entry);
[[nodiscard]] WindowsRow windowsRow(const FigureContext& context, const ProductWindowStat& product);

}  // namespace vantrell
