#include "platform/KeyPair.h"

#include "platform/OpenSslOwners.h"

#include <stdexcept>

#include <openssl/pem.h>

namespace vantrell {

namespace {

template <typename Write>
std::string textWrittenBy(Write write) {
    const OwnedBio bio(BIO_new(BIO_s_mem()));
    if (!bio || write(bio.get()) != 1) {
        throw std::runtime_error("a key could not be written as text");
    }
    char* data = nullptr;
    const auto size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

}  // namespace

KeyPair generateKeyPair() {
    const OwnedKey key(EVP_EC_gen("P-256"));
    if (!key) {
        throw std::runtime_error("a key could not be generated");
    }
    return {
        textWrittenBy([&key](BIO* bio) {
            return PEM_write_bio_PKCS8PrivateKey(bio, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
        }),
        textWrittenBy([&key](BIO* bio) { return PEM_write_bio_PUBKEY(bio, key.get()); }),
    };
}

}  // namespace vantrell
