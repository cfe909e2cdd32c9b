#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrell::testing {

/// The records of a CSV text below its header, read without any code of the program's own.
[[nodiscard]] std::vector<std::vector<std::string>> csvRecords(std::string_view text);

}  // namespace vantrell::testing
