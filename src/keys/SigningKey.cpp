#include "keys/SigningKey.h"

#include "OpenSslText.h"
#include "P256Decoding.h"

#include <cstdlib>
#include <span>
#include <stdexcept>
#include <utility>
#include <vector>

#include <openssl/pem.h>

namespace vantrell {

namespace {

std::string described(KeyRefusal refusal) {
    switch (refusal) {
        case KeyRefusal::passwordProtected:
            return "the key is protected by a password";
        case KeyRefusal::notAKey:
            return "the data is not a private key";
        case KeyRefusal::otherCurve:
            return "the key is not an elliptic-curve key on P-256";
        case KeyRefusal::damaged:
            return "the key is damaged";
    }
    std::abort();
}

std::vector<std::uint8_t> signAsDer(EVP_PKEY* key, std::string_view message) {
    const OwnedDigest digest(EVP_MD_CTX_new());
    const auto* input = reinterpret_cast<const unsigned char*>(message.data());
    std::size_t size = 0;
    if (!digest || EVP_DigestSignInit(digest.get(), nullptr, EVP_sha256(), nullptr, key) != 1 ||
        EVP_DigestSign(digest.get(), nullptr, &size, input, message.size()) != 1) {
        throw std::runtime_error("the key could not be used for signing");
    }
    std::vector<std::uint8_t> der(size);
    if (EVP_DigestSign(digest.get(), der.data(), &size, input, message.size()) != 1) {
        throw std::runtime_error("signing failed");
    }
    der.resize(size);
    return der;
}

void writePadded(const BIGNUM* number, std::span<std::uint8_t> out) {
    const auto size = static_cast<int>(out.size());
    if (BN_bn2binpad(number, out.data(), size) != size) {
        throw std::runtime_error("the signature is out of range");
    }
}

}  // namespace

struct SigningKey::Key {
    OwnedKey handle;

    static std::variant<SigningKey, SigningKeyError> read(std::string_view bytes, KeyFormat format) {
        auto decoded = decodeP256(bytes, format, KeyHalf::privateKey);
        if (const auto* refusal = std::get_if<KeyRefusal>(&decoded)) {
            return SigningKeyError{described(*refusal)};
        }
        return SigningKey(std::make_unique<Key>(Key{std::get<OwnedKey>(std::move(decoded))}));
    }
};

SigningKey::SigningKey(std::unique_ptr<Key> key) : key_(std::move(key)) {}
SigningKey::SigningKey(SigningKey&&) noexcept = default;
SigningKey& SigningKey::operator=(SigningKey&&) noexcept = default;
SigningKey::~SigningKey() = default;

std::variant<SigningKey, SigningKeyError> SigningKey::fromPEM(std::string_view text) {
    return Key::read(text, KeyFormat::pem);
}

std::variant<SigningKey, SigningKeyError> SigningKey::fromDER(std::string_view bytes) {
    return Key::read(bytes, KeyFormat::der);
}

std::array<std::uint8_t, 64> SigningKey::sign(std::string_view message) const {
    const auto der = signAsDer(key_->handle.get(), message);
    const auto* next = der.data();
    const OwnedSignature signature(d2i_ECDSA_SIG(nullptr, &next, static_cast<long>(der.size())));
    if (!signature) {
        throw std::runtime_error("the signature could not be read back");
    }
    std::array<std::uint8_t, 64> raw{};
    const std::span<std::uint8_t, 64> halves(raw);
    writePadded(ECDSA_SIG_get0_r(signature.get()), halves.first<32>());
    writePadded(ECDSA_SIG_get0_s(signature.get()), halves.last<32>());
    return raw;
}

std::string SigningKey::publicPEM() const {
    return textWrittenBy([this](BIO* bio) { return PEM_write_bio_PUBKEY(bio, key_->handle.get()); });
}

}  // namespace vantrell
