#pragma once

#include <string_view>

namespace vantrell {

/// The result of the last attempt to get a report.
enum class ReportStatus {
    ok,           ///< received, and its rows are stored
    empty,        ///< the service says that there were no sales
    pending,      ///< not published yet
    unavailable,  ///< past the service's retention
    error,        ///< the last attempt failed for another reason
    missing,      ///< nothing has been tried yet
};

/// Whether what was sold is known, be it nothing.
[[nodiscard]] constexpr bool isKnown(ReportStatus status) {
    return status == ReportStatus::ok || status == ReportStatus::empty;
}

/// The text that is stored and exported: "ok", "empty", "pending", "unavailable", "error" or "missing".
[[nodiscard]] std::string_view rawText(ReportStatus status);

/// Any text that isn't one of the six, such as one of a later version, gives `missing`.
[[nodiscard]] ReportStatus reportStatus(std::string_view rawText);

}  // namespace vantrell
