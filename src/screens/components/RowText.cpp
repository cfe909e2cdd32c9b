#include "screens/components/RowText.h"

namespace vantrell {

QString rowText(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QLatin1Char('\t'));
}

}  // namespace vantrell
