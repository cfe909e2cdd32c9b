#pragma once

#include <string>

#include <QString>

namespace vantrell {

/// The host of an origin such as "https://host", as texts name it.
[[nodiscard]] QString hostName(const std::string& origin);

/// `path` on that origin for the desktop's browser; empty unless the way there is encrypted.
[[nodiscard]] QString webAddress(const std::string& origin, const QString& path);

}  // namespace vantrell
