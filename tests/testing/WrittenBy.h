#pragma once

#include "OpenSslOwners.h"

#include <string>

#include <gtest/gtest.h>
#include <openssl/pem.h>

namespace vantrell::testing {

/// What one of OpenSSL's writers, given a BIO, puts out.
template <typename Write>
[[nodiscard]] std::string writtenBy(Write write) {
    const OwnedBio bio(BIO_new(BIO_s_mem()));
    EXPECT_EQ(write(bio.get()), 1);
    char* data = nullptr;
    const auto size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

/// An unencrypted or, with a cipher, an encrypted PKCS#8 text.
[[nodiscard]] inline std::string privatePEM(const OwnedKey& key, const EVP_CIPHER* cipher = nullptr) {
    return writtenBy([&](BIO* bio) {
        return PEM_write_bio_PKCS8PrivateKey(bio, key.get(), cipher, "secret", 6, nullptr, nullptr);
    });
}

}  // namespace vantrell::testing
