#pragma once

#include <string>
#include <utility>

namespace vantrell {

/// What gives access to an account's reports. Nothing is trimmed or validated.
struct APICredentials {
    std::string issuerID;
    std::string keyID;
    std::string privateKeyPEM;  ///< the whole text of the .p8 file
    std::string vendorNumber;

    /// True when all four are non-empty.
    [[nodiscard]] bool isComplete() const {
        return !issuerID.empty() && !keyID.empty() && !privateKeyPEM.empty() && !vendorNumber.empty();
    }

    bool operator==(const APICredentials&) const = default;
};

/// Puts `next` in the place of `held`, whose memory is given back: an assignment might keep it, and the key
/// in it.
inline void replace(APICredentials& held, APICredentials next) {
    std::swap(held, next);
}

}  // namespace vantrell
