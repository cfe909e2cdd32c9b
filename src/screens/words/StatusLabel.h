#pragma once

#include "data/ReportStatus.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// What a colour says; the theme knows which one it is in light and dark. QML sees capital names only.
class Tone : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("names only")

  public:
    enum Value { Primary, Secondary, Tertiary, Accent, Good, Warning, Bad, Muted };
    Q_ENUM(Value)
};

/// The label and tone of a report's status.
struct StatusLabel {
    QString text;
    Tone::Value tone = Tone::Muted;
};

/// As rows and sheets say it; "Fetched" for `ok`, which has no badge.
[[nodiscard]] StatusLabel statusLabel(ReportStatus status);

}  // namespace vantrell
