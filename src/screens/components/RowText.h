#pragma once

#include <QString>
#include <QStringList>

namespace vantrell {

/// What a copied row puts on the clipboard: its texts between tabs, without those that are empty.
[[nodiscard]] QString rowText(QStringList texts);

}  // namespace vantrell
