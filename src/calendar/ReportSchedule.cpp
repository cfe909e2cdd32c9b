#include "calendar/ReportSchedule.h"

namespace vantrell {

bool isDayDue(ReportStatus stored, int offset) {
    if (stored == ReportStatus::empty) {
        return offset <= lastOffsetOfEmptyDay;
    }
    return !isFinal(stored);
}

bool isFinal(ReportStatus stored) {
    return stored == ReportStatus::ok || stored == ReportStatus::unavailable;
}

}  // namespace vantrell
