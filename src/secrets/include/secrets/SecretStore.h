#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantrell {

struct SecretAbsent {
    bool operator==(const SecretAbsent&) const = default;
};

/// The store could not be asked or refused: locked, not running, or out of order.
struct SecretUnreadable {
    std::string reason;  ///< the secret service's own wording, for the user
    bool operator==(const SecretUnreadable&) const = default;
};

using SecretRead = std::variant<std::string, SecretAbsent, SecretUnreadable>;

/// Why a secret could not be written.
struct SecretError {
    int code = 0;
    std::string description;  ///< the secret service's own wording; empty if it gave none
    bool operator==(const SecretError&) const = default;
};

/// Keeps one text per (service, account) in the desktop's secret service, and nowhere else. Calls block
/// for a bounded time.
class SecretStore {
  public:
    virtual ~SecretStore() = default;

    [[nodiscard]] virtual SecretRead read(std::string_view service, std::string_view account) = 0;
    /// Absent on success. What is there already is replaced.
    [[nodiscard]] virtual std::optional<SecretError> add(std::string_view service, std::string_view account,
                                                         std::string_view secret) = 0;
    /// The removal of what isn't there is a success. Absent on success; else what was there still is.
    [[nodiscard]] virtual std::optional<SecretError> remove(std::string_view service,
                                                            std::string_view account) = 0;
    /// `tell` is called, once for each, with the answer to a read that was given up because it took too long.
    virtual void whenAnsweredLate(const std::function<void(const SecretRead&)>& /*tell*/) {}
};

}  // namespace vantrell
