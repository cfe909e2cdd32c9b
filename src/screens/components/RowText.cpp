#include "screens/components/RowText.h"

#include <QCoreApplication>

namespace vantrell {

QString rowText(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QLatin1Char('\t'));
}

QString proceedsLabel() {
    return QCoreApplication::translate("Figures", "Proceeds");
}

}  // namespace vantrell
