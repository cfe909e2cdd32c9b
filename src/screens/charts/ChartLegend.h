#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What the marks of a chart are called.
struct ChartLegend {
    Q_GADGET
    QML_VALUE_TYPE(chartLegend)
    Q_PROPERTY(QString proceeds MEMBER proceeds)
    Q_PROPERTY(QString refunds MEMBER refunds)
    Q_PROPERTY(QString notFetched MEMBER notFetched)

  public:
    QString proceeds;
    QString refunds;
    QString notFetched;
    bool operator==(const ChartLegend&) const = default;
};

[[nodiscard]] ChartLegend chartLegend();

}  // namespace vantrell
