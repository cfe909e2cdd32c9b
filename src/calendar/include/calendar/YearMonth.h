#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

/// A year and a month of whichever calendar the text is from; `month` lies in 1 to 12.
struct YearMonth {
    std::int64_t year = 0;
    std::int64_t month = 0;

    bool operator==(const YearMonth&) const = default;
};

/// Reads "2026-08", and as well "2026-8": two whole numbers, the second a month. Any year will do.
[[nodiscard]] std::optional<YearMonth> parseYearMonth(std::string_view text);

/// As "2026-08".
[[nodiscard]] std::string yearMonthText(YearMonth month);

/// `number` in ASCII digits, with zeros in front up to `width`.
[[nodiscard]] std::string zeroPadded(std::int64_t number, std::size_t width);

}  // namespace vantrell
