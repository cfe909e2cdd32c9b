#include "keys/VerifyingKey.h"

#include "P256Decoding.h"

#include <utility>
#include <vector>

namespace vantrell {

namespace {

constexpr std::size_t halfSize = 32;

/// The form that the library verifies; empty if it can't be made.
std::vector<std::uint8_t> derSignature(std::span<const std::uint8_t> raw) {
    const auto half = static_cast<int>(halfSize);
    OwnedNumber r(BN_bin2bn(raw.first(halfSize).data(), half, nullptr));
    OwnedNumber s(BN_bin2bn(raw.last(halfSize).data(), half, nullptr));
    const OwnedSignature signature(ECDSA_SIG_new());
    if (!r || !s || !signature || ECDSA_SIG_set0(signature.get(), r.get(), s.get()) != 1) {
        return {};
    }
    // They belong to the signature now.
    static_cast<void>(r.release());
    static_cast<void>(s.release());
    const auto size = i2d_ECDSA_SIG(signature.get(), nullptr);
    if (size <= 0) {
        return {};
    }
    std::vector<std::uint8_t> der(static_cast<std::size_t>(size));
    auto* next = der.data();
    i2d_ECDSA_SIG(signature.get(), &next);
    return der;
}

}  // namespace

struct VerifyingKey::Key {
    OwnedKey handle;
};

VerifyingKey::VerifyingKey(std::unique_ptr<Key> key) : key_(std::move(key)) {}
VerifyingKey::VerifyingKey(VerifyingKey&&) noexcept = default;
VerifyingKey& VerifyingKey::operator=(VerifyingKey&&) noexcept = default;
VerifyingKey::~VerifyingKey() = default;

std::optional<VerifyingKey> VerifyingKey::fromPEM(std::string_view text) {
    auto decoded = decodeP256(text, KeyFormat::pem, KeyHalf::publicKey);
    if (std::holds_alternative<KeyRefusal>(decoded)) {
        return std::nullopt;
    }
    return VerifyingKey(std::make_unique<Key>(Key{std::get<OwnedKey>(std::move(decoded))}));
}

bool VerifyingKey::verify(std::string_view message, std::span<const std::uint8_t> signature) const {
    if (signature.size() != 2 * halfSize) {
        return false;
    }
    const OpenSslErrorsForgotten errorsForgotten;
    const auto der = derSignature(signature);
    const OwnedDigest digest(EVP_MD_CTX_new());
    return !der.empty() && digest &&
           EVP_DigestVerifyInit(digest.get(), nullptr, EVP_sha256(), nullptr, key_->handle.get()) == 1 &&
           EVP_DigestVerify(digest.get(), der.data(), der.size(),
                            reinterpret_cast<const unsigned char*>(message.data()), message.size()) == 1;
}

}  // namespace vantrell
