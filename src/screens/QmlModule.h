#pragma once

#include <QQmlEngine>
#include <QUrl>

namespace vantrell {

/// Makes the screens' QML types and files known to `engine`.
void prepareQmlEngine(QQmlEngine& engine);

/// The main window, whose required property "root" is a RootView.
[[nodiscard]] QUrl mainQml();
/// The window that stands in its place where the program can't start, with what it is about in its required
/// properties "message", "isDark" and "isMirrored".
[[nodiscard]] QUrl startFailureQml();

}  // namespace vantrell
