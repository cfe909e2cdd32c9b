#pragma once

#include <string_view>

namespace vantrell {

// Which Vantrell this is. Both are set in the top CMakeLists.txt and nowhere else.

/// Such as "1.0".
[[nodiscard]] std::string_view programVersion();
/// Counts the builds that were given out.
[[nodiscard]] std::string_view programBuild();

}  // namespace vantrell
