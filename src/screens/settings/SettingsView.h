#pragma once

#include "screens/Screen.h"
#include "screens/about/AboutView.h"
#include "screens/log/SyncLogView.h"
#include "screens/settings/CredentialsEditor.h"
#include "screens/settings/DisplaySettings.h"
#include "screens/settings/ExportSettings.h"
#include "screens/settings/SyncSettings.h"

#include <QTimer>

namespace vantrell {

/// Everything that isn't a figure: the key, the currency, the runs and their log, exports and privacy.
class SettingsView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(vantrell::CredentialsEditor* credentials READ credentials CONSTANT)
    Q_PROPERTY(vantrell::DisplaySettings* display READ display CONSTANT)
    Q_PROPERTY(vantrell::SyncSettings* sync READ sync CONSTANT)
    Q_PROPERTY(vantrell::ExportSettings* exports READ exports CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString cloudStatus READ cloudStatus CONSTANT)
    Q_PROPERTY(vantrell::Tone::Value cloudTone READ cloudTone CONSTANT)
    Q_PROPERTY(QString privacyText READ privacyText CONSTANT)
    Q_PROPERTY(vantrell::SyncLogView* log READ log CONSTANT)
    Q_PROPERTY(bool isLogShown READ isLogShown NOTIFY isLogShownChanged)

  public:
    explicit SettingsView(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] CredentialsEditor* credentials() { return &credentials_; }
    [[nodiscard]] DisplaySettings* display() { return &display_; }
    [[nodiscard]] SyncSettings* sync() { return &sync_; }
    [[nodiscard]] ExportSettings* exports() { return &exports_; }

    [[nodiscard]] QString version() const { return AboutView::version(); }

    [[nodiscard]] QString cloudStatus() const;
    [[nodiscard]] Tone::Value cloudTone() const;
    [[nodiscard]] QString privacyText() const;

    /// The log lies over the settings until the user goes back.
    [[nodiscard]] SyncLogView* log() { return &log_; }
    [[nodiscard]] bool isLogShown() const { return isLogShown_; }
    Q_INVOKABLE void openLog() { showLog(true); }
    Q_INVOKABLE void closeLog() { showLog(false); }

  Q_SIGNALS:
    void isLogShownChanged();

  private:
    void refresh() override;
    void appearOrLeave();
    void showLog(bool isShown);

    CredentialsEditor credentials_;
    DisplaySettings display_;
    SyncSettings sync_;
    ExportSettings exports_;
    SyncLogView log_;
    bool isLogShown_ = false;
    QTimer eachMinute_;
};

}  // namespace vantrell
