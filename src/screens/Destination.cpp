#include "screens/Destination.h"

#include <QCoreApplication>

namespace vantrell {

std::vector<DestinationItem> destinationItems() {
    return {
        {Destination::dashboard, QCoreApplication::translate("Destination", "Dashboard"),
         QStringLiteral("chart.bar.xaxis")},
        {Destination::apps, QCoreApplication::translate("Destination", "Apps Overview"),
         QStringLiteral("square.grid.2x2")},
        {Destination::byDay, QCoreApplication::translate("Destination", "Trends Over Time"),
         QStringLiteral("chart.line.uptrend.xyaxis")},
        {Destination::history, QCoreApplication::translate("Destination", "History"),
         QStringLiteral("clock.arrow.circlepath")},
        {Destination::payouts, QCoreApplication::translate("Destination", "Payouts"),
         QStringLiteral("banknote")},
        {Destination::settings, QCoreApplication::translate("Destination", "Settings"),
         QStringLiteral("gearshape")},
    };
}

}  // namespace vantrell
