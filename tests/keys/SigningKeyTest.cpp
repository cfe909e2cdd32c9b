#include "keys/KeyPair.h"
#include "keys/SigningKey.h"
#include "keys/VerifyingKey.h"

#include <algorithm>

#include <QByteArray>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(SigningKey, PadsHalvesThatBeginWithZeroBytes) {
    const auto pair = generateKeyPair();
    const auto signer = std::get<SigningKey>(SigningKey::fromPEM(pair.privatePEM));
    const auto verifier = VerifyingKey::fromPEM(pair.publicPEM);
    ASSERT_TRUE(verifier);
    // One signature in 128 has such a half.
    for (int attempt = 0; attempt < 5000; ++attempt) {
        const auto signature = signer.sign("message");
        if (signature[0] == 0 || signature[32] == 0) {
            EXPECT_TRUE(verifier->verify("message", signature));
            return;
        }
    }
    FAIL() << "no half began with a zero byte";
}

// The example of RFC 7515, appendix A.3.
constexpr auto publishedKey =
    "-----BEGIN PUBLIC KEY-----\n"
    "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEf83OJ3D2xF1Bg8vub9tLe1gHMzV7\n"
    "6e8Tus9uPHvRVEXH8UTNG72bfocs3+257rn0s2ldbqkLJK2KRiMohYjlrQ==\n"
    "-----END PUBLIC KEY-----\n";
constexpr auto publishedMessage =
    "eyJhbGciOiJFUzI1NiJ9.eyJpc3MiOiJqb2UiLA0KICJleHAiOjEzMDA4MTkzODAsDQogImh0dHA6Ly9leGFtcGxlLmNvbS9pc19y"
    "b290Ijp0cnVlfQ";
constexpr auto publishedSignature =
    "DtEhU3ljbEg8L38VWAfUAqOyKAM6-Xx-F4GawxaepmXFCgfTjDxw5djxLa8ISlSApmWQxfKTUJqPP3-Kg6NU1Q";

TEST(VerifyingKey, AcceptsThePublishedSignatureAndNoChangedOne) {
    const auto verifier = VerifyingKey::fromPEM(publishedKey);
    ASSERT_TRUE(verifier);
    const auto decoded = QByteArray::fromBase64(publishedSignature, QByteArray::Base64UrlEncoding);
    std::vector<std::uint8_t> signature(decoded.begin(), decoded.end());
    EXPECT_TRUE(verifier->verify(publishedMessage, signature));
    EXPECT_FALSE(verifier->verify("another message", signature));
    EXPECT_FALSE(verifier->verify(publishedMessage, std::span(signature).first(63)));
    std::ranges::rotate(signature, signature.begin() + 32);
    EXPECT_FALSE(verifier->verify(publishedMessage, signature));
}

}  // namespace
}  // namespace vantrell
