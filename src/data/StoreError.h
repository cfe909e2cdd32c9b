#pragma once

#include <string>

namespace vantrell {

/// Why the store could not be opened, read or written, in words for the user.
struct StoreError {
    std::string description;
    bool operator==(const StoreError&) const = default;
};

}  // namespace vantrell
