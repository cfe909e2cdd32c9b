#include "screens/charts/ChartAnnotation.h"

#include <QStringList>

namespace vantrell {

QString ChartAnnotation::spoken() const {
    QStringList parts{title, status};
    for (const ChartAmount& amount : amounts) {
        parts += amount.spoken;
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

}  // namespace vantrell
