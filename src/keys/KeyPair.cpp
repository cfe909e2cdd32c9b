#include "keys/KeyPair.h"

#include "OpenSslOwners.h"
#include "OpenSslText.h"

#include <stdexcept>

#include <openssl/pem.h>

namespace vantrell {

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
