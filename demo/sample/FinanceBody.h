#pragma once

#include "sample/SampleAccount.h"

#include <string>

namespace vantrell::sample {

/// The plain text of the consolidated finance report of `range`, currencies mixed, with three lines of totals
/// for each currency at the end, in the order of their codes.
[[nodiscard]] std::string financeBody(const SampleAccount& account, const DateRange& range);

}  // namespace vantrell::sample
