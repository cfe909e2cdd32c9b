#pragma once

#include <QQmlEngine>
#include <QUrl>

namespace vantrell {

/// Makes the screens' QML types and files known to `engine`.
void prepareQmlEngine(QQmlEngine& engine);

/// The main window, whose required property "root" is a RootView.
[[nodiscard]] QUrl mainQml();

}  // namespace vantrell
