#include "ServiceFixture.h"

#include "platform/SigningKey.h"

#include <memory>
#include <variant>

#include <QByteArray>
#include <QEventLoop>
#include <QNetworkReply>
#include <QUrlQuery>

namespace vantrell::testing {

const KeyPair& sellersKey() {
    static const auto pair = generateKeyPair();
    return pair;
}

const sample::SampleAccess& access() {
    static const sample::SampleAccess allowed{.issuerID = "3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15",
                                              .keyID = "7QK2MZ8T5W",
                                              .vendorNumber = "60419372",
                                              .publicKeyPEM = sellersKey().publicPEM};
    return allowed;
}

std::string base64url(std::string_view bytes) {
    return QByteArray{bytes.data(), static_cast<qsizetype>(bytes.size())}
        .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals)
        .toStdString();
}

std::string Claims::json() const {
    const auto iat = std::chrono::floor<std::chrono::seconds>(issued).time_since_epoch();
    return R"({"iss":")" + issuer + R"(","iat":)" + std::to_string(iat.count()) + R"(,"exp":)" +
           std::to_string((iat + life).count()) + R"(,"aud":)" + audience + "}";
}

std::string bearer(std::string_view header, std::string_view claims, std::string_view privatePEM) {
    const auto input = base64url(header) + "." + base64url(claims);
    const auto key = SigningKey::fromPEM(privatePEM);
    const auto signature = std::get<SigningKey>(key).sign(input);
    return "Bearer " + input + "." + base64url(std::string(signature.begin(), signature.end()));
}

Query salesQuery(const std::string& frequency, const std::string& date, const std::string& version) {
    return {{"filter[vendorNumber]", access().vendorNumber},
            {"filter[reportType]", "SALES"},
            {"filter[reportSubType]", "SUMMARY"},
            {"filter[frequency]", frequency},
            {"filter[reportDate]", date},
            {"filter[version]", version}};
}

Query financeQuery(const std::string& period) {
    return {{"filter[vendorNumber]", access().vendorNumber},
            {"filter[reportType]", "FINANCIAL"},
            {"filter[regionCode]", "ZZ"},
            {"filter[reportDate]", period}};
}

Reply ServiceFixture::get(const std::string& path, const Query& query, const std::string& authorization) {
    QUrlQuery items;
    for (const auto& [name, value] : query) {
        items.addQueryItem(QString::fromStdString(name), QString::fromStdString(value));
    }
    QUrl url{QString::fromStdString(service.origin() + path)};
    url.setQuery(items);
    QNetworkRequest request{url};
    request.setTransferTimeout(10'000);
    if (!authorization.empty()) {
        request.setRawHeader("Authorization", QByteArray::fromStdString(authorization));
    }
    const std::unique_ptr<QNetworkReply> reply{network.get(request)};
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
            reply->readAll().toStdString()};
}

}  // namespace vantrell::testing
