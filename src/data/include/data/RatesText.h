#pragma once

#include <map>
#include <string>
#include <string_view>

namespace vantrell {

using Rates = std::map<std::string, double, std::less<>>;

/// Rates as a JSON object from currency code to number, which reads back to the very same doubles.
[[nodiscard]] std::string ratesText(const Rates& rates);

/// What is no JSON object gives no rates; a member that is no number is left out.
[[nodiscard]] Rates ratesFromText(std::string_view text);

}  // namespace vantrell
