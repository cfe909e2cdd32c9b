#pragma once

#include <string>

namespace vantrell {

/// Tells a stored report, of either kind, from all others.
struct ReportName {
    std::string group;  ///< frequency of a sales report, region of a finance report
    std::string label;  ///< report date or fiscal period
    bool operator==(const ReportName&) const = default;
};

}  // namespace vantrell
