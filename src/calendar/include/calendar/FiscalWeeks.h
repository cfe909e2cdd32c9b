#pragma once

#include "base/Instant.h"

#include <optional>
#include <string_view>

namespace vantrell {

/// The day in Los Angeles, a Saturday, with which a fiscal period such as "2026-01" ends. A fiscal year ends
/// with the last Saturday of September; its months have 5, 4 and 4 weeks, and the third of a year of 53 weeks
/// has 5. Absent where the text is no period, or one beyond the year 9999.
[[nodiscard]] std::optional<CivilDate> lastDayOfFiscalPeriod(std::string_view period);

}  // namespace vantrell
