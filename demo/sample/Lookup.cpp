#include "sample/Lookup.h"

#include "sample/IconDesk.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell::sample {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool isSoldIn(const Item& app, std::string_view country) {
    const auto local = text(country).toUpper();
    return app.home.empty() || local.isEmpty() || local == QLatin1String("US") || local == text(app.home);
}

QJsonObject entry(const Item& app, std::string_view origin) {
    QJsonObject found{{QStringLiteral("wrapperType"), QStringLiteral("software")},
                      {QStringLiteral("trackId"), static_cast<qint64>(app.appleID)},
                      {QStringLiteral("trackName"), text(app.titles.back().value)},
                      {QStringLiteral("bundleId"), text(app.sku)}};
    for (const int side : {60, 100}) {
        if (const auto path = iconPath(app, side)) {
            found.insert(QStringLiteral("artworkUrl%1").arg(side), text(origin) + text(*path));
        }
    }
    return found;
}

}  // namespace

std::string lookupBody(std::span<const Item> items, std::string_view ids, std::string_view country,
                       std::string_view origin) {
    const auto asked = text(ids).split(QLatin1Char(','));
    QJsonArray results;
    for (const auto& item : items) {
        if (item.isApp() && !item.withdrawn && isSoldIn(item, country) &&
            asked.contains(QString::number(item.appleID))) {
            results.append(entry(item, origin));
        }
    }
    const QJsonObject body{{QStringLiteral("resultCount"), results.size()},
                           {QStringLiteral("results"), results}};
    return QJsonDocument{body}.toJson(QJsonDocument::Compact).toStdString();
}

}  // namespace vantrell::sample
