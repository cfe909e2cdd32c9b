#pragma once

#include <cstdlib>

namespace vantrell {

/// Ends the program where a promise is broken, so that the input is kept.
inline void require(bool promise) {
    if (!promise) {
        std::abort();
    }
}

}  // namespace vantrell
