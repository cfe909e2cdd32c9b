#pragma once

#include "screens/words/StatusLabel.h"

namespace vantrell {

/// The mark beside a day whose report isn't there; without text there is nothing to mark.
struct StatusBadge {
    Q_GADGET
    QML_VALUE_TYPE(statusBadge)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(vantrell::Tone::Value tone MEMBER tone)

  public:
    QString text;
    Tone::Value tone = Tone::Muted;
    bool operator==(const StatusBadge&) const = default;
};

[[nodiscard]] inline StatusBadge statusBadge(ReportStatus status) {
    const StatusLabel label = statusLabel(status);
    return status == ReportStatus::ok ? StatusBadge() : StatusBadge{label.text, label.tone};
}

}  // namespace vantrell
