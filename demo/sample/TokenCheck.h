#pragma once

#include "base/Instant.h"
#include "keys/VerifyingKey.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrell::sample {

/// What a client must know to be let in, and the public half of its key.
struct SampleAccess {
    std::string issuerID;
    std::string keyID;
    std::string vendorNumber;
    std::string publicKeyPEM;  ///< if it is no key, no token is good
};

/// Why a token is refused. The client is never told.
enum class TokenFault {
    missing,
    malformed,
    algorithm,
    keyID,
    signature,
    issuer,
    audience,
    lifetime,  ///< above 1,200 seconds, or ending before it begins
    expired,
    fromTheFuture,
};

/// Judges the bearer tokens of report requests as strictly as the real service.
class TokenCheck {
  public:
    explicit TokenCheck(const SampleAccess& access);

    /// Absent if the header's value holds a good token.
    [[nodiscard]] std::optional<TokenFault> fault(std::string_view authorization, Instant now) const;

  private:
    std::string issuerID_;
    std::string keyID_;
    std::optional<VerifyingKey> key_;
};

}  // namespace vantrell::sample
