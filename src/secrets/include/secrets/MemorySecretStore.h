#pragma once

#include "secrets/SecretStore.h"

#include <map>
#include <utility>

namespace vantrell {

/// Keeps secrets for the life of the object, for trials and tests. It can be told to fail like a real
/// service does.
class MemorySecretStore final : public SecretStore {
  public:
    [[nodiscard]] SecretRead read(std::string_view service, std::string_view account) override;
    [[nodiscard]] std::optional<SecretError> add(std::string_view service, std::string_view account,
                                                 std::string_view secret) override;
    [[nodiscard]] std::optional<SecretError> remove(std::string_view service,
                                                    std::string_view account) override;

    /// The next add ends with `error` and changes nothing.
    void failNextAdd(SecretError error) { nextAddError_ = std::move(error); }
    /// Every read and removal ends with `reason` until it is set to absent.
    void setUnreadable(std::optional<std::string> reason) { unreadable_ = std::move(reason); }

  private:
    std::map<std::pair<std::string, std::string>, std::string> secrets_;
    std::optional<SecretError> nextAddError_;
    std::optional<std::string> unreadable_;
};

}  // namespace vantrell
