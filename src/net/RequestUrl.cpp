#include "net/RequestUrl.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace vantrell {
namespace {

std::string percentEncoded(const std::string& text) {
    return QByteArray::fromStdString(text).toPercentEncoding().toStdString();
}

bool isOrigin(std::string_view text) {
    const QUrl url(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), QUrl::StrictMode);
    const bool web = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    const auto originOnly =
        QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::RemoveUserInfo;
    return url.isValid() && web && !url.host().isEmpty() && url == url.adjusted(originOnly);
}

}  // namespace

std::optional<std::string> requestUrl(std::string_view origin, std::string_view path,
                                      const std::vector<QueryItem>& queryItems) {
    if (!isOrigin(origin) || !path.starts_with('/')) {
        return std::nullopt;
    }
    std::string url = std::string(origin).append(path);
    char separator = '?';
    for (const auto& [name, value] : queryItems) {
        url.append(1, separator).append(percentEncoded(name)).append("=").append(percentEncoded(value));
        separator = '&';
    }
    return url;
}

}  // namespace vantrell
