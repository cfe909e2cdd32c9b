#pragma once

#include <chrono>
#include <string_view>

namespace vantrell {

/// Whether the Secret Service may hide an item for (service, account) behind a lock: one is there and locked,
/// or the default collection is. Asks the service itself, without a prompt for the user; false if it can't
/// tell.
[[nodiscard]] bool isSecretLocked(std::string_view service, std::string_view account,
                                  std::chrono::milliseconds patience);

}  // namespace vantrell
