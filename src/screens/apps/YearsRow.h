#pragma once

#include "figures/Apps.h"
#include "screens/apps/ColumnTitles.h"
#include "screens/components/FigureContext.h"

#include <QVariant>

namespace vantrell {

/// What an app earned in a year.
struct YearCell {
    Q_GADGET
    QML_VALUE_TYPE(yearCell)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(bool isEmpty MEMBER isEmpty)

  public:
    QString text;
    QString spoken;
    bool isEmpty = true;
    bool operator==(const YearCell&) const = default;
};

/// One app in the matrix of years.
struct YearsRow {
    Q_GADGET
    QML_VALUE_TYPE(yearsRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QVariantList cells MEMBER cells)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString title;
    QVariantList cells;  ///< of YearCell
    [[nodiscard]] QString copyText() const;
    bool operator==(const YearsRow&) const = default;
};

/// The current year is marked as unfinished.
[[nodiscard]] ColumnTitles yearTitles(const FigureContext& context, const std::vector<std::string>& years);
[[nodiscard]] YearsRow yearsRow(const FigureContext& context, const AppInfo& app, const YearMatrix& matrix);

}  // namespace vantrell
