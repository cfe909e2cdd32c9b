#include "screens/words/UnitsCaption.h"

#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

#include <QCoreApplication>

namespace vantrell {

QString captionJoiner() {
    return QStringLiteral(" · ");
}

QString unitsCaption(const Locale& locale, const AggregateStats& stats, bool showUpdates) {
    QStringList parts;
    const auto add = [&](std::int64_t units, const char* words) {
        if (units != 0) {
            parts += QCoreApplication::translate("UnitsCaption", words, nullptr, pluralNumber(units))
                         .arg(fromUtf8(locale.count(units)));
        }
    };
    add(stats.appUnits, QT_TRANSLATE_N_NOOP("UnitsCaption", "%1 app"));
    add(stats.iapUnits, QT_TRANSLATE_N_NOOP("UnitsCaption", "%1 in-app"));
    add(stats.refundedUnits, QT_TRANSLATE_N_NOOP("UnitsCaption", "%1 refunded"));
    if (showUpdates) {
        add(stats.updateUnits, QT_TRANSLATE_N_NOOP("UnitsCaption", "%1 updates"));
    }
    return parts.isEmpty() ? QCoreApplication::translate("UnitsCaption", "No paid units")
                           : parts.join(captionJoiner());
}

}  // namespace vantrell
