#include "data/RatesText.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {

std::string ratesText(const Rates& rates) {
    QJsonObject object;
    for (const auto& [code, rate] : rates) {
        object.insert(QString::fromStdString(code), rate);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

Rates ratesFromText(std::string_view text) {
    const auto bytes = QByteArray(text.data(), static_cast<qsizetype>(text.size()));
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    Rates rates;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->isDouble()) {
            rates.emplace(member.key().toStdString(), member->toDouble());
        }
    }
    return rates;
}

}  // namespace vantrell
