#pragma once

#include "base/Instant.h"
#include "calendar/YearMonth.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

// Fiscal periods as text: year and month of a fiscal year that runs from October to September and is named
// after the calendar year in which it ends. "2026-01" is October 2025.

/// The period in which `pacificDay`, a day in Los Angeles, lies.
[[nodiscard]] std::string fiscalPeriod(CivilDate pacificDay);

/// Fiscal year and month; absent unless the text is two whole numbers with a year from 2001 on.
[[nodiscard]] std::optional<YearMonth> parseFiscalPeriod(std::string_view text);

/// The period after `text`, or `text` itself if it is no period.
[[nodiscard]] std::string nextFiscalPeriod(std::string_view text);

/// The periods from `from` up to and including `through`, at most `maxFiscalPeriods`; none if either is no
/// period or `through` sorts before `from`.
[[nodiscard]] std::vector<std::string> fiscalPeriods(std::string_view from, std::string_view through);

}  // namespace vantrell
