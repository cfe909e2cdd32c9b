#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What a row of a BlockList shows; its value is named behind. QML sees capital names only.
class RowKind : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("names only")

  public:
    enum Value {
        Heading,         ///< QString
        Note,            ///< QString, in small print
        Absence,         ///< QString, in place of a list
        Tiles,           ///< nothing: the screen has them
        Chart,           ///< likewise
        WindowTitles,    ///< ColumnTitles
        YearTitles,      ///< ColumnTitles
        PayoutTitles,    ///< ColumnTitles
        Period,          ///< PeriodRowView
        Day,             ///< DayRowView
        Product,         ///< ProductRowView
        LineItem,        ///< LineItemRow
        Country,         ///< CountryRow
        AppWindows,      ///< WindowsRow
        ProductWindows,  ///< WindowsRow
        Years,           ///< YearsRow
        Payout,          ///< AppPayoutRow
    };
    Q_ENUM(Value)
};

}  // namespace vantrell
