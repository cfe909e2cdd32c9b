#pragma once

#include "screens/RowList.h"
#include "screens/settings/CredentialsEditor.h"

namespace vantrell {

/// One thing to do on the way to a key.
struct WelcomeStep {
    Q_GADGET
    QML_VALUE_TYPE(welcomeStep)
    Q_PROPERTY(QString number MEMBER number)
    Q_PROPERTY(QString styledText MEMBER styledText)
    Q_PROPERTY(QString plainText MEMBER plainText)

  public:
    QString number;
    QString styledText;  ///< the one text that is shown as markup: bold and code only
    QString plainText;   ///< the same for whoever hears it
    bool operator==(const WelcomeStep&) const = default;
};

/// What fills the window until there is a key: what the program does, how to make a key, and the form for it.
class WelcomeView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(vantrell::RowList* steps READ steps CONSTANT)
    Q_PROPERTY(QString linkAddress READ linkAddress CONSTANT)
    Q_PROPERTY(vantrell::CredentialsEditor* credentials READ credentials CONSTANT)

  public:
    explicit WelcomeView(const ScreenParts& parts, QObject* parent = nullptr);

    /// Why a key that may be there could not be read; empty if there simply is none.
    [[nodiscard]] QString problem() const;
    [[nodiscard]] RowList* steps() { return &steps_; }
    [[nodiscard]] QString linkAddress() const;
    [[nodiscard]] CredentialsEditor* credentials() { return &credentials_; }

  Q_SIGNALS:
    void problemChanged();

  private:
    void appear();

    ScreenParts parts_;
    RowList steps_;
    CredentialsEditor credentials_;
};

}  // namespace vantrell
