#pragma once

#include "data/APICredentials.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrell {

/// The user's other stores, for the reports of another vendor number. Each is open in a program of its own,
/// and has a number; that of the first one is 1.
class OtherStores {
  public:
    virtual ~OtherStores() = default;

    /// The number of this store.
    [[nodiscard]] virtual int own() const = 0;
    [[nodiscard]] virtual std::vector<int> others() const = 0;

    // Both tell what went wrong, for the user.

    [[nodiscard]] virtual std::optional<std::string> open(int store) = 0;
    /// Opens the store whose key has the same vendor number, else a new one, which is given this key.
    [[nodiscard]] virtual std::optional<std::string> openWith(const APICredentials& key) = 0;
};

}  // namespace vantrell
