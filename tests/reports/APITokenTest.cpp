#include "platform/KeyPair.h"
#include "platform/VerifyingKey.h"
#include "reports/APIToken.h"
#include "testing/Cases.h"
#include "testing/Golden.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include <gtest/gtest.h>
#include <openssl/err.h>

namespace vantrell {
namespace {

constexpr Instant issueTime{std::chrono::microseconds{1'795'348'800'999'999}};

APICredentials credentialsWith(std::string privateKey) {
    return {"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W", std::move(privateKey), "60419372"};
}

QByteArray decoded(const QByteArray& segment) {
    return QByteArray::fromBase64(segment,
                                  QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
}

QJsonObject objectIn(const QByteArray& segment) {
    return QJsonDocument::fromJson(decoded(segment)).object();
}

bool isGenuine(const std::string& token, const std::string& publicPEM) {
    const auto dot = token.rfind('.');
    const QByteArray signature = decoded(QByteArray::fromStdString(token.substr(dot + 1)));
    const auto key = VerifyingKey::fromPEM(publicPEM);
    const std::vector<std::uint8_t> bytes(signature.begin(), signature.end());
    return key && bytes.size() == 64 && key->verify(token.substr(0, dot), bytes);
}

TEST(APIToken, HoldsExactlyTheMembersThatTheServiceAsksFor) {
    const KeyPair keys = generateKeyPair();
    const std::string token = makeAPIToken(credentialsWith(keys.privatePEM), issueTime);
    const auto segments = QByteArray::fromStdString(token).split('.');
    ASSERT_EQ(segments.size(), 3);
    EXPECT_EQ(objectIn(segments[0]), (QJsonObject{{QStringLiteral("alg"), QStringLiteral("ES256")},
                                                  {QStringLiteral("kid"), QStringLiteral("7QK2MZ8T5W")},
                                                  {QStringLiteral("typ"), QStringLiteral("JWT")}}));
    EXPECT_EQ(objectIn(segments[1]),
              (QJsonObject{{QStringLiteral("iss"), QStringLiteral("3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15")},
                           {QStringLiteral("iat"), qint64{1'795'348'800}},
                           {QStringLiteral("exp"), qint64{1'795'350'000}},
                           {QStringLiteral("aud"), QStringLiteral("appstoreconnect-v1")}}));
    EXPECT_TRUE(decoded(segments[1]).contains("\"iat\":1795348800,"))
        << "a whole number, without an exponent";
    EXPECT_TRUE(isGenuine(token, keys.publicPEM));
    EXPECT_FALSE(isGenuine(token, generateKeyPair().publicPEM));
}

TEST(APIToken, IsSignedWithAKeyInItsUsualFormsAndAnyOtherIsToldInWordsThatHoldNothingOfIt) {
    const std::string publicPEM = testing::fileText(VANTRELL_TEST_DATA "/public-key.pem");
    testing::expectCases<1>(
        VANTRELL_TEST_DATA "/keys.tsv", [&publicPEM](const std::string& key) -> std::string {
            try {
                return isGenuine(makeAPIToken(credentialsWith(key), issueTime), publicPEM) ? "genuine"
                                                                                           : "forged";
            } catch (const JWTError& error) {
                EXPECT_EQ(ERR_peek_error(), 0U);
                return error.what();
            }
        });
}

}  // namespace
}  // namespace vantrell
