#include "screens/charts/ChartLegend.h"

#include <QCoreApplication>

namespace vantrell {

ChartLegend chartLegend() {
    return {QCoreApplication::translate("ChartLegend", "Proceeds"),
            QCoreApplication::translate("ChartLegend", "Refunds"),
            QCoreApplication::translate("ChartLegend", "Not fetched")};
}

}  // namespace vantrell
