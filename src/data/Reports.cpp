#include "data/Reports.h"

#include <chrono>

namespace vantrell {

// To the hours by which zones differ it doesn't matter, since years are published days later.
bool SalesReport::wasStillRunning() const {
    const CivilDate day = std::chrono::floor<std::chrono::days>(fetchedAt);
    return status() == ReportStatus::ok && frequencyRaw == rawText(ReportFrequency::yearly) &&
           reportDate == std::to_string(static_cast<int>(day.year()));
}

bool SalesReport::isWhole() const {
    return status() == ReportStatus::ok && message != notAReport && !wasStillRunning();
}

}  // namespace vantrell
