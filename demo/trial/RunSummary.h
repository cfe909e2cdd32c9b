#pragma once

#include "core/MyApp.h"
#include "locale/Locale.h"

#include <ostream>

namespace vantrell {

/// Writes the reports by status and the headline figures with their exact amounts by currency.
void writeRunSummary(MyApp& app, const Locale& locale, std::ostream& output);

}  // namespace vantrell
