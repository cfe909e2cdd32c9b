#pragma once

#include "base/Instant.h"
#include "data/APICredentials.h"
#include "keys/SigningKey.h"

#include <chrono>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantrell {

/// Why a token could not be made; `what()` is for the user and holds nothing of the key.
class JWTError final : public std::runtime_error {
  public:
    [[nodiscard]] static JWTError invalidPrivateKey(std::string_view reason);

  private:
    using std::runtime_error::runtime_error;
};

inline constexpr std::chrono::seconds tokenLifetime{1'200};

/// A JSON Web Token for the report service, signed with ES256. It is issued at `now` cut to whole seconds and
/// expires `tokenLifetime` later. Throws JWTError, or std::runtime_error if the signing fails.
[[nodiscard]] std::string makeAPIToken(const APICredentials& credentials, Instant now);

/// Reads a .p8 file: armoured, or the base64 of the armour's inside alone. Throws JWTError.
[[nodiscard]] SigningKey loadSigningKey(std::string_view pem);

}  // namespace vantrell
