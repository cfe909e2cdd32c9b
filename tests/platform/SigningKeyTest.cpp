#include "WrittenText.h"
#include "platform/KeyPair.h"
#include "platform/SigningKey.h"
#include "platform/VerifyingKey.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <openssl/pem.h>

namespace vantrell {
namespace {

using testing::writtenBy;

std::string pkcs8(const OwnedKey& key, const EVP_CIPHER* cipher = nullptr) {
    return writtenBy([&](BIO* bio) {
        return PEM_write_bio_PKCS8PrivateKey(bio, key.get(), cipher, "secret", 6, nullptr, nullptr);
    });
}

std::string pkcs8Der(const OwnedKey& key, const EVP_CIPHER* cipher = nullptr) {
    return writtenBy([&](BIO* bio) {
        return i2d_PKCS8PrivateKey_bio(bio, key.get(), cipher, "secret", 6, nullptr, nullptr);
    });
}

std::string sec1(const OwnedKey& key) {
    return writtenBy([&](BIO* bio) {
        return PEM_write_bio_PrivateKey_traditional(bio, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    });
}

std::string sec1Der(const OwnedKey& key) {
    return writtenBy([&](BIO* bio) { return i2d_PrivateKey_bio(bio, key.get()); });
}

std::string publicPem(const OwnedKey& key) {
    return writtenBy([&](BIO* bio) { return PEM_write_bio_PUBKEY(bio, key.get()); });
}

std::string withWindowsLineEndings(std::string text) {
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
        text.replace(at, 1, "\r\n");
    }
    return text;
}

using Reader = std::variant<SigningKey, SigningKeyError> (*)(std::string_view);

TEST(SigningKey, ReadsEveryFormOfAPrivateKeyAndSignsForItsPublicHalf) {
    const OwnedKey key(EVP_EC_gen("P-256"));
    const struct {
        const char* name;
        Reader read;
        std::string bytes;
    } cases[] = {
        {"PKCS#8", &SigningKey::fromPEM, pkcs8(key)},
        {"PKCS#8 with Windows line endings", &SigningKey::fromPEM, withWindowsLineEndings(pkcs8(key))},
        {"PKCS#8 after a line of text", &SigningKey::fromPEM, "My key\n" + pkcs8(key)},
        {"PKCS#8 in DER", &SigningKey::fromDER, pkcs8Der(key)},
        {"SEC1", &SigningKey::fromPEM, sec1(key)},
        {"SEC1 in DER", &SigningKey::fromDER, sec1Der(key)},
    };
    const auto verifier = VerifyingKey::fromPEM(publicPem(key));
    ASSERT_TRUE(verifier);
    for (const auto& [name, read, bytes] : cases) {
        const auto result = read(bytes);
        const auto* signer = std::get_if<SigningKey>(&result);
        ASSERT_NE(signer, nullptr) << name;
        EXPECT_TRUE(verifier->verify("header.claims", signer->sign("header.claims"))) << name;
    }
}

TEST(SigningKey, RefusesOtherDataInPlainWords) {
    const OwnedKey key(EVP_EC_gen("P-256"));
    const OwnedKey p384(EVP_EC_gen("P-384"));
    const OwnedKey edwards(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"));
    const auto* cipher = EVP_aes_128_cbc();
    auto foreignScalar = sec1Der(key);
    foreignScalar[20] = static_cast<char>(foreignScalar[20] ^ 1);
    const auto pem = &SigningKey::fromPEM;
    const auto der = &SigningKey::fromDER;
    const struct {
        const char* name;
        Reader read;
        std::string bytes;
        const char* words;
    } cases[] = {
        {"empty text", pem, "", "the data is not a private key"},
        {"no bytes", der, "", "the data is not a private key"},
        {"no armour", pem, "7QK2MZ8T5W", "the data is not a private key"},
        {"cut DER", der, pkcs8Der(key).substr(0, 60), "the data is not a private key"},
        {"a public key", pem, publicPem(key), "the data is not a private key"},
        {"a password", pem, pkcs8(key, cipher), "the key is protected by a password"},
        {"a password, DER", der, pkcs8Der(key, cipher), "the key is protected by a password"},
        {"another curve", pem, pkcs8(p384), "the key is not an elliptic-curve key on P-256"},
        {"another kind", pem, pkcs8(edwards), "the key is not an elliptic-curve key on P-256"},
        {"halves of two keys", der, foreignScalar, "the key is damaged"},
    };
    for (const auto& [name, read, bytes, words] : cases) {
        const auto result = read(bytes);
        const auto* error = std::get_if<SigningKeyError>(&result);
        ASSERT_NE(error, nullptr) << name;
        EXPECT_EQ(error->description, words) << name;
        EXPECT_EQ(ERR_peek_error(), 0U) << name;
    }
}

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
constexpr std::array<std::uint8_t, 64> publishedSignature = {
    0x0e, 0xd1, 0x21, 0x53, 0x79, 0x63, 0x6c, 0x48, 0x3c, 0x2f, 0x7f, 0x15, 0x58, 0x07, 0xd4, 0x02,
    0xa3, 0xb2, 0x28, 0x03, 0x3a, 0xf9, 0x7c, 0x7e, 0x17, 0x81, 0x9a, 0xc3, 0x16, 0x9e, 0xa6, 0x65,
    0xc5, 0x0a, 0x07, 0xd3, 0x8c, 0x3c, 0x70, 0xe5, 0xd8, 0xf1, 0x2d, 0xaf, 0x08, 0x4a, 0x54, 0x80,
    0xa6, 0x65, 0x90, 0xc5, 0xf2, 0x93, 0x50, 0x9a, 0x8f, 0x3f, 0x7f, 0x8a, 0x83, 0xa3, 0x54, 0xd5};

TEST(VerifyingKey, AcceptsThePublishedSignatureAndNoChangedOne) {
    const auto verifier = VerifyingKey::fromPEM(publishedKey);
    ASSERT_TRUE(verifier);
    EXPECT_TRUE(verifier->verify(publishedMessage, publishedSignature));
    EXPECT_FALSE(verifier->verify("another message", publishedSignature));
    EXPECT_FALSE(verifier->verify(publishedMessage, std::span(publishedSignature).first(63)));
    EXPECT_FALSE(verifier->verify(publishedMessage, {}));
    EXPECT_FALSE(verifier->verify(publishedMessage, std::array<std::uint8_t, 64>{}));
    auto swapped = publishedSignature;
    std::ranges::rotate(swapped, swapped.begin() + 32);
    EXPECT_FALSE(verifier->verify(publishedMessage, swapped));
}

TEST(VerifyingKey, ReadsNothingButPublicKeysOnItsCurve) {
    EXPECT_FALSE(VerifyingKey::fromPEM("no key"));
    EXPECT_FALSE(VerifyingKey::fromPEM(publicPem(OwnedKey(EVP_EC_gen("P-384")))));
}

}  // namespace
}  // namespace vantrell
