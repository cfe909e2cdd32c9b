#pragma once

#include <memory>

#include <openssl/bio.h>
#include <openssl/decoder.h>
#include <openssl/ecdsa.h>
#include <openssl/err.h>
#include <openssl/evp.h>

namespace vantrell {

template <auto release>
struct OpenSslRelease {
    template <typename Object>
    void operator()(Object* object) const {
        release(object);
    }
};

/// Owners of OpenSSL's objects. Releasing a key or a BIO of memory wipes what it held.
using OwnedKey = std::unique_ptr<EVP_PKEY, OpenSslRelease<EVP_PKEY_free>>;
using OwnedKeyContext = std::unique_ptr<EVP_PKEY_CTX, OpenSslRelease<EVP_PKEY_CTX_free>>;
using OwnedDigest = std::unique_ptr<EVP_MD_CTX, OpenSslRelease<EVP_MD_CTX_free>>;
using OwnedDecoder = std::unique_ptr<OSSL_DECODER_CTX, OpenSslRelease<OSSL_DECODER_CTX_free>>;
using OwnedSignature = std::unique_ptr<ECDSA_SIG, OpenSslRelease<ECDSA_SIG_free>>;
using OwnedNumber = std::unique_ptr<BIGNUM, OpenSslRelease<BN_free>>;
using OwnedBio = std::unique_ptr<BIO, OpenSslRelease<BIO_free_all>>;

/// What a failed call leaves in the library's queue would be taken for an error of the next TLS call; this
/// drops what was added in its lifetime.
class OpenSslErrorsForgotten {
  public:
    OpenSslErrorsForgotten() { ERR_set_mark(); }
    ~OpenSslErrorsForgotten() { ERR_pop_to_mark(); }
    OpenSslErrorsForgotten(const OpenSslErrorsForgotten&) = delete;
    OpenSslErrorsForgotten& operator=(const OpenSslErrorsForgotten&) = delete;
};

}  // namespace vantrell
