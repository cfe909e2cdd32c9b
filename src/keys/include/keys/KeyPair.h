#pragma once

#include <string>

namespace vantrell {

/// A key pair on the curve P-256 as armoured text: the private half as PKCS#8, the public half as a
/// SubjectPublicKeyInfo.
struct KeyPair {
    std::string privatePEM;
    std::string publicPEM;
};

/// A fresh pair, for trials and tests: the product only reads keys. Throws std::runtime_error if the library
/// fails.
[[nodiscard]] KeyPair generateKeyPair();

}  // namespace vantrell
