#include "sample/TokenCheck.h"

#include <cmath>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell::sample {

namespace {

/// A token taken apart, not yet believed.
struct Token {
    std::string_view signedPart;
    QJsonObject header;
    QJsonObject claims;
    QByteArray signature;
};

std::optional<QByteArray> decoded(std::string_view segment) {
    const auto encoded = QByteArray::fromRawData(segment.data(), static_cast<qsizetype>(segment.size()));
    auto result = QByteArray::fromBase64Encoding(
        encoded, QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
    if (segment.empty() || segment.find('=') != std::string_view::npos || !result) {
        return std::nullopt;
    }
    return std::move(result.decoded);
}

std::optional<QJsonObject> decodedObject(std::string_view segment) {
    const auto bytes = decoded(segment);
    const auto document = bytes ? QJsonDocument::fromJson(*bytes) : QJsonDocument{};
    return document.isObject() ? std::optional{document.object()} : std::nullopt;
}

std::optional<Token> takenApart(std::string_view text) {
    const auto first = text.find('.');
    const auto second = first == std::string_view::npos ? first : text.find('.', first + 1);
    if (second == std::string_view::npos) {
        return std::nullopt;
    }
    auto header = decodedObject(text.substr(0, first));
    auto claims = decodedObject(text.substr(first + 1, second - first - 1));
    auto signature = decoded(text.substr(second + 1));
    if (!header || !claims || !signature) {
        return std::nullopt;
    }
    return Token{text.substr(0, second), *std::move(header), *std::move(claims), *std::move(signature)};
}

bool holds(const QJsonObject& object, const char* member, std::string_view expected) {
    const auto value = object.value(QLatin1String(member));
    return value.isString() && value.toString().toStdString() == expected;
}

std::optional<std::int64_t> wholeSeconds(const QJsonObject& claims, const char* member) {
    const auto value = claims.value(QLatin1String(member));
    if (!value.isDouble() || value.toDouble() != std::floor(value.toDouble())) {
        return std::nullopt;
    }
    return value.toInteger();
}

std::optional<TokenFault> faultOfTimes(const QJsonObject& claims, Instant now) {
    constexpr std::int64_t longestLife = 1200;
    // Clients whose clock runs ahead a little are borne with.
    constexpr std::int64_t clockSkew = 60;
    const auto issued = wholeSeconds(claims, "iat");
    const auto expires = wholeSeconds(claims, "exp");
    if (!issued || !expires) {
        return TokenFault::malformed;
    }
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch().count();
    if (*expires <= *issued || *expires - *issued > longestLife) {
        return TokenFault::lifetime;
    }
    if (*expires <= seconds) {
        return TokenFault::expired;
    }
    return *issued > seconds + clockSkew ? std::optional{TokenFault::fromTheFuture} : std::nullopt;
}

bool isGenuine(const Token& token, const std::optional<VerifyingKey>& key) {
    const std::span<const char> bytes{token.signature.constData(),
                                      static_cast<std::size_t>(token.signature.size())};
    const std::vector<std::uint8_t> signature(bytes.begin(), bytes.end());
    return key && key->verify(token.signedPart, signature);
}

}  // namespace

TokenCheck::TokenCheck(const SampleAccess& access)
    : issuerID_(access.issuerID), keyID_(access.keyID), key_(VerifyingKey::fromPEM(access.publicKeyPEM)) {}

std::optional<TokenFault> TokenCheck::fault(std::string_view authorization, Instant now) const {
    constexpr std::string_view scheme = "Bearer ";
    if (!authorization.starts_with(scheme)) {
        return TokenFault::missing;
    }
    const auto token = takenApart(authorization.substr(scheme.size()));
    if (!token) {
        return TokenFault::malformed;
    }
    if (!holds(token->header, "alg", "ES256") || !holds(token->header, "typ", "JWT")) {
        return TokenFault::algorithm;
    }
    if (!holds(token->header, "kid", keyID_)) {
        return TokenFault::keyID;
    }
    if (!isGenuine(*token, key_)) {
        return TokenFault::signature;
    }
    if (!holds(token->claims, "iss", issuerID_)) {
        return TokenFault::issuer;
    }
    if (!holds(token->claims, "aud", "appstoreconnect-v1")) {
        return TokenFault::audience;
    }
    return faultOfTimes(token->claims, now);
}

}  // namespace vantrell::sample
