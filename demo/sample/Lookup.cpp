#include "sample/Lookup.h"

#include "sample/IconDesk.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell::sample {

namespace {

bool isSoldIn(const Item& app, std::string_view country) {
    const auto local = QString::fromUtf8(country).toUpper();
    return app.home.empty() || local.isEmpty() || local == QLatin1String("US") ||
           local == QString::fromUtf8(app.home);
}

QJsonObject entry(const Item& app, std::string_view origin) {
    QJsonObject found{{QStringLiteral("wrapperType"), QStringLiteral("software")},
                      {QStringLiteral("trackId"), static_cast<qint64>(app.appleID)},
                      {QStringLiteral("trackName"), QString::fromUtf8(app.titles.back().value)},
                      {QStringLiteral("bundleId"), QString::fromUtf8(app.sku)}};
    for (const int side : {60, 100}) {
        if (const auto path = iconPath(app, side)) {
            found.insert(QStringLiteral("artworkUrl%1").arg(side),
                         QString::fromUtf8(origin) + QString::fromUtf8(*path));
        }
    }
    return found;
}

}  // namespace

std::string lookupBody(std::span<const Item> items, std::string_view ids, std::string_view country,
                       std::string_view origin) {
    const auto asked = QString::fromUtf8(ids).split(QLatin1Char(','));
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
