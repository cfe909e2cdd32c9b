#pragma once

#include <string>

#include <QQuickWindow>

namespace vantrell {

/// What a screen reader finds in a window, in reading order: a line an item with its role, its name as spoken
/// and its value as shown, between tabs. It is asked of the platform's accessibility interfaces, so it tells
/// what is painted and not what a model says.
[[nodiscard]] std::string spokenText(QQuickWindow& window);

}  // namespace vantrell
