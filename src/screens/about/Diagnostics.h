#pragma once

#include "screens/ScreenParts.h"

#include <string>

namespace vantrell {

/// What somebody who reports a fault can send along, in English: which program runs on what, how the store
/// is, how many reports there are by status, and how the last run ended. No key or ID, no name of an app, no
/// amount.
[[nodiscard]] std::string diagnosticsText(const ScreenParts& parts);

}  // namespace vantrell
