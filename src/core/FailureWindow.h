#pragma once

#include "core/EndSignals.h"
#include "locale/Locale.h"
#include "screens/Appearance.h"

#include <string>

namespace vantrell {

/// Shows why the program can't start until the user closes the window. Does nothing where nobody would see
/// it.
void showStartFailure(const std::string& message, const Locale& locale, const Appearance& appearance,
                      const EndSignals& endSignals);

}  // namespace vantrell
