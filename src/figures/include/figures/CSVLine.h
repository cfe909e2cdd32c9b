#pragma once

#include "figures/AggregateStats.h"

#include <string>
#include <vector>

namespace vantrell {

/// One line of comma-separated values without its end. A field with a comma, a double quote or a line feed is
/// quoted, and double quotes in it are doubled; any other stands as it is.
[[nodiscard]] std::string csvLine(const std::vector<std::string>& fields);

/// Exact amounts as one field, by currency code: "EUR 1.5; USD -2". Empty for no amounts.
[[nodiscard]] std::string breakdownText(const AmountsByCurrency& byCurrency);

}  // namespace vantrell
