#include "P256Decoding.h"

#include <array>

namespace vantrell {

namespace {

/// The library's default would ask on the terminal, which a desktop program may not have.
int refusePassword(char* /*buffer*/, int /*size*/, int /*writing*/, void* asked) {
    *static_cast<bool*>(asked) = true;
    return -1;
}

bool isOnP256(const EVP_PKEY* key) {
    std::array<char, 64> group{};
    return EVP_PKEY_is_a(key, "EC") == 1 &&
           EVP_PKEY_get_group_name(key, group.data(), group.size(), nullptr) == 1 &&
           std::string_view(group.data()) == "prime256v1";
}

/// A key whose halves don't belong together would sign tokens that nobody accepts.
bool isConsistent(EVP_PKEY* key, KeyHalf half) {
    const OwnedKeyContext context(EVP_PKEY_CTX_new(key, nullptr));
    if (!context) {
        return false;
    }
    const auto checked =
        half == KeyHalf::privateKey ? EVP_PKEY_check(context.get()) : EVP_PKEY_public_check(context.get());
    return checked == 1;
}

}  // namespace

std::variant<OwnedKey, KeyRefusal> decodeP256(std::string_view bytes, KeyFormat format, KeyHalf half) {
    const OpenSslErrorsForgotten errorsForgotten;
    EVP_PKEY* decoded = nullptr;
    const OwnedDecoder decoder(OSSL_DECODER_CTX_new_for_pkey(
        &decoded, format == KeyFormat::pem ? "PEM" : "DER", nullptr, nullptr,
        half == KeyHalf::privateKey ? EVP_PKEY_KEYPAIR : EVP_PKEY_PUBLIC_KEY, nullptr, nullptr));
    bool passwordAsked = false;
    OSSL_DECODER_CTX_set_pem_password_cb(decoder.get(), refusePassword, &passwordAsked);
    const auto* next = reinterpret_cast<const unsigned char*>(bytes.data());
    auto left = bytes.size();
    const bool success = OSSL_DECODER_from_data(decoder.get(), &next, &left) == 1;
    OwnedKey key(decoded);
    if (passwordAsked) {
        return KeyRefusal::passwordProtected;
    }
    if (!success || !key) {
        return KeyRefusal::notAKey;
    }
    if (!isOnP256(key.get())) {
        return KeyRefusal::otherCurve;
    }
    if (!isConsistent(key.get(), half)) {
        return KeyRefusal::damaged;
    }
    return key;
}

}  // namespace vantrell
