#pragma once

#include <optional>

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The colour that tells one series of a stacked chart from the others, in light and dark windows.
struct SeriesColor {
    Q_GADGET
    QML_VALUE_TYPE(seriesColor)
    Q_PROPERTY(QColor light MEMBER light)
    Q_PROPERTY(QColor dark MEMBER dark)

  public:
    QColor light;
    QColor dark;
    bool operator==(const SeriesColor&) const = default;
};

/// Of the series with a colour index from 0 to 7; a faint gray for one without.
[[nodiscard]] SeriesColor seriesColor(std::optional<int> colorIndex);

}  // namespace vantrell
