#pragma once

#include "screens/AboutView.h"

namespace vantrell {

/// The application's menu: about, and looking for updates.
class AboutAndUpdateCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(QString aboutText READ aboutText CONSTANT)
    Q_PROPERTY(QString updatesText READ updatesText CONSTANT)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates CONSTANT)

  public:
    /// The view must outlive the menu.
    explicit AboutAndUpdateCommands(AboutView& about, QObject* parent = nullptr)
        : QObject(parent), about_(about) {}

    [[nodiscard]] QString title() const { return tr("Application menu"); }
    [[nodiscard]] QString symbol() const { return QStringLiteral("line.3.horizontal"); }
    [[nodiscard]] QString aboutText() const { return tr("About Vantrell"); }
    Q_INVOKABLE void openAbout() { about_.open(); }
    [[nodiscard]] QString updatesText() const { return tr("Check for Updates…"); }
    /// Not yet: nothing looks for updates.
    [[nodiscard]] bool canCheckForUpdates() const { return false; }

  private:
    AboutView& about_;
};

}  // namespace vantrell
