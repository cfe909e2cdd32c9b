#include "screens/words/StatusLabel.h"

#include <QCoreApplication>

namespace vantrell {

StatusLabel statusLabel(ReportStatus status) {
    switch (status) {
        case ReportStatus::ok:
            return {QCoreApplication::translate("ReportStatus", "Fetched"), Tone::Muted};
        case ReportStatus::empty:
            return {QCoreApplication::translate("ReportStatus", "No sales"), Tone::Muted};
        case ReportStatus::pending:
            return {QCoreApplication::translate("ReportStatus", "Not published yet"), Tone::Warning};
        case ReportStatus::unavailable:
            return {QCoreApplication::translate("ReportStatus", "Past retention"), Tone::Muted};
        case ReportStatus::error:
            return {QCoreApplication::translate("ReportStatus", "Error"), Tone::Bad};
        case ReportStatus::missing:
            return {QCoreApplication::translate("ReportStatus", "Not fetched"), Tone::Muted};
    }
    return {};
}

}  // namespace vantrell
