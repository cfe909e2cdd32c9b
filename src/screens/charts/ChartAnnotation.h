#pragma once

#include "screens/charts/SeriesColor.h"
#include "screens/words/StatusLabel.h"

#include <vector>

#include <QString>

namespace vantrell {

/// One amount of a column.
struct ChartAmount {
    Q_GADGET
    QML_VALUE_TYPE(chartAmount)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(vantrell::Tone::Value tone MEMBER tone)
    Q_PROPERTY(bool hasDot MEMBER hasDot)
    Q_PROPERTY(vantrell::SeriesColor dot MEMBER dot)
    Q_PROPERTY(bool isSmall MEMBER isSmall)

  public:
    QString title;  ///< empty where the amount speaks for itself
    QString amount;
    QString spoken;
    Tone::Value tone = Tone::Primary;
    bool hasDot = false;
    SeriesColor dot;
    bool isSmall = false;  ///< one of several
    bool operator==(const ChartAmount&) const = default;
};

/// What a chart says about the selected column; empty without a selection.
struct ChartAnnotation {
    Q_GADGET
    QML_VALUE_TYPE(chartAnnotation)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString spoken READ spoken)

  public:
    QString title;
    QString status;
    std::vector<ChartAmount> amounts;
    /// All of it in one sentence.
    [[nodiscard]] QString spoken() const;
    bool operator==(const ChartAnnotation&) const = default;
};

/// A column in the table that stands for the chart.
struct ChartTableRow {
    Q_GADGET
    QML_VALUE_TYPE(chartTableRow)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString proceeds MEMBER proceeds)
    Q_PROPERTY(QString spokenProceeds MEMBER spokenProceeds)
    Q_PROPERTY(QString refunds MEMBER refunds)
    Q_PROPERTY(QString spokenRefunds MEMBER spokenRefunds)
    Q_PROPERTY(QString spoken MEMBER spoken)

  public:
    QString title;
    QString status;
    QString proceeds;  ///< empty if nothing was fetched
    QString spokenProceeds;
    QString refunds;  ///< empty if there are none
    QString spokenRefunds;
    QString spoken;  ///< the whole row
    bool operator==(const ChartTableRow&) const = default;
};

}  // namespace vantrell
