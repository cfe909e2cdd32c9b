#pragma once

#include "sample/SampleAccount.h"

#include <string>

namespace vantrell::sample {

/// The plain text of the sales report of `range`: one line a kind of sale, over all its days. A range
/// without sales gives the heading alone, which the service never sends.
[[nodiscard]] std::string salesBody(const SampleAccount& account, const DateRange& range);

}  // namespace vantrell::sample
