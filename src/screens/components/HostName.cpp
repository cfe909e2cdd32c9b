#include "screens/components/HostName.h"

#include "screens/components/ShownText.h"

#include <QUrl>

namespace vantrell {

QString hostName(const std::string& origin) {
    return shownText(QUrl(QString::fromStdString(origin)).host().toStdString());
}

QString webAddress(const std::string& origin, const QString& path) {
    QUrl url(QString::fromStdString(origin));
    if (url.scheme() != QStringLiteral("https")) {
        return {};
    }
    url.setPath(path);
    return url.toString();
}

}  // namespace vantrell
