#pragma once

#include "data/ReportStatus.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What a colour says; the theme knows which one it is in light and dark.
class Tone : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("names only")

  public:
    enum Value { primary, secondary, tertiary, accent, good, warning, bad, muted };
    Q_ENUM(Value)
};

/// The label and tone of a report's status.
struct StatusLabel {
    QString text;
    Tone::Value tone = Tone::muted;
};

/// As rows and sheets say it; "Fetched" for `ok`, which has no badge.
[[nodiscard]] StatusLabel statusLabel(ReportStatus status);

}  // namespace vantrell
