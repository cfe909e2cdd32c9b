#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrell {

/// Reads the counts of one report, and notices those that 64 bits don't hold, by themselves or added up.
class ReportCounts {
  public:
    [[nodiscard]] std::int64_t read(std::string_view cell);

    /// What is to be told of them; mostly nothing.
    [[nodiscard]] std::string note() const;

  private:
    bool allFit_ = true;
    bool sumFits_ = true;
    std::int64_t sum_ = 0;  // without signs, since sales and refunds are told apart
};

}  // namespace vantrell
