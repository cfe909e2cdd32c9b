#pragma once

#include "screens/ScreenParts.h"

namespace vantrell {

/// The services that the product talks to. Nothing else is ever asked for anything.
[[nodiscard]] ServiceOrigins publicServices();

}  // namespace vantrell
