#include "screens/components/UnitsCaption.h"

#include "screens/components/ShownText.h"

#include <QCoreApplication>

namespace vantrell {

QString captionJoiner() {
    return QStringLiteral(" · ");
}

QString unitsCaption(const Locale& locale, const AggregateStats& stats, bool showUpdates) {
    QStringList parts;
    const auto add = [&](std::int64_t units, const QString& what) {
        if (units != 0) {
            parts += fromUtf8(locale.count(units)) + what;
        }
    };
    add(stats.appUnits, QCoreApplication::translate("UnitsCaption", " app"));
    add(stats.iapUnits, QCoreApplication::translate("UnitsCaption", " in-app"));
    add(stats.refundedUnits, QCoreApplication::translate("UnitsCaption", " refunded"));
    if (showUpdates) {
        add(stats.updateUnits, QCoreApplication::translate("UnitsCaption", " updates"));
    }
    return parts.isEmpty() ? QCoreApplication::translate("UnitsCaption", "No paid units")
                           : parts.join(captionJoiner());
}

}  // namespace vantrell
