#include "sample/Lookup.h"

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
    const auto picture = text(origin) + QStringLiteral("/icon/%1").arg(app.appleID);
    QJsonObject found{{QStringLiteral("wrapperType"), QStringLiteral("software")},
                      {QStringLiteral("trackId"), static_cast<qint64>(app.appleID)},
                      {QStringLiteral("trackName"), text(app.titles.back().value)},
                      {QStringLiteral("bundleId"), text(app.sku)},
                      {QStringLiteral("artworkUrl60"), picture + QStringLiteral("-60.png")}};
    // The store has no large picture of the iPad's apps.
    if (app.hardware != Hardware::iPad) {
        found.insert(QStringLiteral("artworkUrl100"), picture + QStringLiteral("-100.png"));
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
