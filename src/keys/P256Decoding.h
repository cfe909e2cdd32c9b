#pragma once

#include "OpenSslOwners.h"

#include <string_view>
#include <variant>

namespace vantrell {

enum class KeyRefusal { passwordProtected, notAKey, otherCurve, damaged };

enum class KeyFormat { pem, der };
enum class KeyHalf { privateKey, publicKey };

/// Reads a key on the curve P-256. Never asks for a password, and leaves nothing in the library's error
/// queue.
[[nodiscard]] std::variant<OwnedKey, KeyRefusal> decodeP256(std::string_view bytes, KeyFormat format,
                                                            KeyHalf half);

}  // namespace vantrell
