#pragma once

#include "base/Decimal.h"
#include "base/Instant.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrell {

/// Noon UTC of a day written month/day/year, with slashes at either end borne. Years outside 2001 to 2199 are
/// no dates; a day that its month doesn't have runs on into the next month.
[[nodiscard]] std::optional<Instant> parseReportDate(std::string_view text);

struct ReportCount {
    std::int64_t value = 0;
    bool fits = true;  ///< in 64 bits; else `value` is the nearest that does
};

/// A count. Commas are left out and a fraction is cut off: "1,200" is 1200 and "12.7" is 12. A text that is
/// no number is 0.
[[nodiscard]] ReportCount parseReportCount(std::string_view text);

/// An amount, exactly. Commas are left out: "2,5" is 25. A text that is no number is 0.
[[nodiscard]] Decimal parseReportDecimal(std::string_view text);

/// An Apple identifier: digits only, with an optional sign. Any other text is 0, which means none.
[[nodiscard]] std::int64_t parseAppleIdentifier(std::string_view text);

}  // namespace vantrell
