#pragma once

#include "secrets/SecretStore.h"

#include <chrono>
#include <memory>

#include <QObject>

namespace QKeychain {
class Job;
}

namespace vantrell {

/// Keeps secrets in the desktop's keychain (Secret Service or KWallet), and never in a file of its own.
///
/// A call waits in an event loop of its own that leaves the user's clicks and keys for later. Reading waits
/// no longer than a window may take to appear: an answer that takes longer is told when it comes. The service
/// may ask the user to unlock the keychain, so that writing waits longer. A write that takes too long is told
/// as an error, and may still happen once the user has answered.
class KeychainSecretStore final : public SecretStore {
  public:
    explicit KeychainSecretStore(std::chrono::milliseconds readPatience = std::chrono::milliseconds{250},
                                 std::chrono::milliseconds writePatience = std::chrono::minutes{2});
    KeychainSecretStore(const KeychainSecretStore&) = delete;
    KeychainSecretStore& operator=(const KeychainSecretStore&) = delete;

    [[nodiscard]] SecretRead read(std::string_view service, std::string_view account) override;
    [[nodiscard]] std::optional<SecretError> add(std::string_view service, std::string_view account,
                                                 std::string_view secret) override;
    [[nodiscard]] std::optional<SecretError> remove(std::string_view service,
                                                    std::string_view account) override;
    void whenAnsweredLate(const std::function<void(const SecretRead&)>& tell) override { tellLate_ = tell; }

  private:
    struct Outcome;
    [[nodiscard]] static SecretRead asRead(const Outcome& outcome, std::string_view service,
                                           std::string_view account);
    void tellWhenAnswered(std::string service, std::string account);
    Outcome run(std::unique_ptr<QKeychain::Job> job, std::string_view account,
                std::chrono::milliseconds patience);

    const std::chrono::milliseconds readPatience_;
    const std::chrono::milliseconds writePatience_;
    QKeychain::Job* underWay_ = nullptr;
    std::function<void(const SecretRead&)> tellLate_;
    QObject context_;
};

}  // namespace vantrell
