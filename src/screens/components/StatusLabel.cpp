#include "screens/components/StatusLabel.h"

#include <QCoreApplication>

namespace vantrell {

StatusLabel statusLabel(ReportStatus status) {
    switch (status) {
        case ReportStatus::ok:
            return {QCoreApplication::translate("ReportStatus", "Fetched"), Tone::muted};
        case ReportStatus::empty:
            return {QCoreApplication::translate("ReportStatus", "No sales"), Tone::muted};
        case ReportStatus::pending:
            return {QCoreApplication::translate("ReportStatus", "Not published yet"), Tone::warning};
        case ReportStatus::unavailable:
            return {QCoreApplication::translate("ReportStatus", "Past retention"), Tone::muted};
        case ReportStatus::error:
            return {QCoreApplication::translate("ReportStatus", "Error"), Tone::bad};
        case ReportStatus::missing:
            return {QCoreApplication::translate("ReportStatus", "Not fetched"), Tone::muted};
    }
    return {};
}

}  // namespace vantrell
