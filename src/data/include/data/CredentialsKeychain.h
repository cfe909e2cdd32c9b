#pragma once

#include "data/APICredentials.h"
#include "secrets/SecretStore.h"

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace vantrell {

/// The secret service refused to keep the credentials.
class CredentialsError : public std::runtime_error {
  public:
    CredentialsError(int code, const std::string& description)
        : std::runtime_error(description), code_(code) {}
    [[nodiscard]] int code() const { return code_; }

  private:
    int code_;
};

/// The wording of a failure, or "Keyring error " and the code where the service gave none.
[[nodiscard]] std::string keychainErrorText(const SecretError& error);

struct LoadedCredentials {
    std::optional<APICredentials> credentials;  ///< absent also for a damaged item
    std::optional<std::string> problem;  ///< why the secret service could not be read, in its own words
};

/// Keeps the credentials as one item of the secret service, and nowhere else: a JSON object of four texts.
class CredentialsKeychain {
  public:
    /// Each of the user's stores has an item of its own; the first store is number 1.
    explicit CredentialsKeychain(SecretStore& secrets, int store = 1);

    [[nodiscard]] LoadedCredentials load();
    /// Replaces what is there; throws CredentialsError, and then the old item is still there.
    void store(const APICredentials& credentials);
    /// Throws CredentialsError; the item is still there then.
    void remove();
    /// `tell` is called with what `load` would have given, had the service answered in time.
    void whenLoadedLate(std::function<void(LoadedCredentials)> tell);

  private:
    SecretStore& secrets_;
    std::string account_;
};

}  // namespace vantrell
