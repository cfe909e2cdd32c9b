#pragma once

#include "screens/about/AboutView.h"

namespace vantrell {

/// The application's menu: about, and looking for updates.
class AboutAndUpdateCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates CONSTANT)

  public:
    /// The view must outlive the menu.
    explicit AboutAndUpdateCommands(AboutView& about, QObject* parent = nullptr)
        : QObject(parent), about_(about) {}

    Q_INVOKABLE void openAbout() { about_.open(); }
    /// Not yet: nothing looks for updates.
    [[nodiscard]] bool canCheckForUpdates() const { return false; }

  private:
    AboutView& about_;
};

}  // namespace vantrell
