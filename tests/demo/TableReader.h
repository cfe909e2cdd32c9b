#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell::testing {

/// A report read the plainest way there is, so that what the sample account writes is judged by something
/// that shares no code with it or with the program.
class TableReader {
  public:
    using Line = std::vector<std::string>;

    explicit TableReader(std::string_view body);

    /// The lines that have as many cells as the heading, which itself is left out, as the totals are.
    [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }

    /// As it stands in the report, blanks included. `heading` must be one of the report's.
    [[nodiscard]] const std::string& raw(const Line& line, std::string_view heading) const;
    /// Without spaces at either end.
    [[nodiscard]] std::string cell(const Line& line, std::string_view heading) const;
    [[nodiscard]] std::int64_t number(const Line& line, std::string_view heading) const;
    /// In hundredths, whatever the currency: "-1.5" is -150 and "1200" is 120000.
    [[nodiscard]] std::int64_t hundredths(const Line& line, std::string_view heading) const;

  private:
    std::map<std::string, std::size_t, std::less<>> columns_;
    std::vector<Line> lines_;
};

}  // namespace vantrell::testing
