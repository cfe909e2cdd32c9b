#pragma once

#include "figures/AggregateStats.h"
#include "locale/Locale.h"

#include <QString>
#include <QStringList>

namespace vantrell {

/// " · ", between the parts of a caption.
[[nodiscard]] QString captionJoiner();

/// The units of a figure in one line; "No paid units" if there is nothing to tell. Redownloads are not told.
[[nodiscard]] QString unitsCaption(const Locale& locale, const AggregateStats& stats, bool showUpdates);

}  // namespace vantrell
