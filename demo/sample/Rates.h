#pragma once

#include <string>

namespace vantrell::sample {

/// The body of the exchange-rate service's answer: units of each currency for one US dollar, always the same.
[[nodiscard]] std::string ratesBody();

}  // namespace vantrell::sample
