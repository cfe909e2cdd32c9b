#pragma once

#include "sample/Days.h"
#include "sample/Money.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace vantrell::sample {

/// Writes a report's tab-separated lines, cell by cell.
class ReportTable {
  public:
    /// `heading` is the whole first line, without its end.
    explicit ReportTable(std::string_view heading);

    ReportTable& text(std::string_view cell);
    /// The service writes most of its blank cells as one space.
    ReportTable& blank() { return text(" "); }
    ReportTable& textOrBlank(std::string_view cell) { return text(cell.empty() ? " " : cell); }
    ReportTable& number(std::int64_t cell);
    ReportTable& money(Money cell, LeadingZero zero = LeadingZero::written);
    void endLine();

    [[nodiscard]] std::string take() && { return std::move(body_); }

  private:
    std::string body_;
};

/// "08/14/2026", as dates stand in every report.
[[nodiscard]] std::string reportDateCell(Day day);

}  // namespace vantrell::sample
