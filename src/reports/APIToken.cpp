#include "reports/APIToken.h"

#include "base/Whitespace.h"

#include <optional>
#include <utility>
#include <variant>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell {
namespace {

std::string base64Url(const QByteArray& bytes) {
    return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals).toStdString();
}

std::string segment(const QJsonObject& members) {
    return base64Url(QJsonDocument(members).toJson(QJsonDocument::Compact));
}

/// Base64 with nothing left out and nothing besides; absent for any other text.
std::optional<QByteArray> decodeBase64(const QByteArray& encoded) {
    if (encoded.size() % 4 != 0) {
        return std::nullopt;
    }
    auto decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(std::move(*decoded)) : std::nullopt;
}

/// The lines between and beside armour lines, as one text.
std::string withoutArmour(std::string_view pem) {
    std::string inside;
    for (const std::string_view line : splitAtNewlines(pem)) {
        if (!line.starts_with("-----")) {
            inside += line;
        }
    }
    return std::string(trimWhitespaceAndNewlines(inside));
}

}  // namespace

JWTError JWTError::invalidPrivateKey(std::string_view reason) {
    return JWTError("The .p8 private key could not be read: " + std::string(reason));
}

SigningKey loadSigningKey(std::string_view pem) {
    auto armoured = SigningKey::fromPEM(pem);
    if (auto* const key = std::get_if<SigningKey>(&armoured)) {
        return std::move(*key);
    }
    const auto der = decodeBase64(QByteArray::fromStdString(withoutArmour(pem)));
    if (!der) {
        throw JWTError::invalidPrivateKey("the file is not valid PEM or base64");
    }
    auto bare = SigningKey::fromDER({der->constData(), static_cast<std::size_t>(der->size())});
    if (const auto* const error = std::get_if<SigningKeyError>(&bare)) {
        throw JWTError::invalidPrivateKey(error->description);
    }
    return std::get<SigningKey>(std::move(bare));
}

std::string makeAPIToken(const APICredentials& credentials, Instant now) {
    const SigningKey key = loadSigningKey(credentials.privateKeyPEM);
    const auto issued = std::chrono::duration_cast<std::chrono::seconds>(now.time_since_epoch());
    const QJsonObject header{{QStringLiteral("alg"), QStringLiteral("ES256")},
                             {QStringLiteral("kid"), QString::fromUtf8(credentials.keyID)},
                             {QStringLiteral("typ"), QStringLiteral("JWT")}};
    const QJsonObject claims{{QStringLiteral("iss"), QString::fromUtf8(credentials.issuerID)},
                             {QStringLiteral("iat"), qint64{issued.count()}},
                             {QStringLiteral("exp"), qint64{(issued + tokenLifetime).count()}},
                             {QStringLiteral("aud"), QStringLiteral("appstoreconnect-v1")}};
    std::string token = segment(header) + "." + segment(claims);
    const auto signature = key.sign(token);
    return token + "." +
           base64Url(QByteArray(reinterpret_cast<const char*>(signature.data()), signature.size()));
}

}  // namespace vantrell
