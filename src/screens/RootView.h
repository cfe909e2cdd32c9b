#pragma once

#include "icons/AppIconStore.h"
#include "screens/Destination.h"
#include "screens/DriveLoop.h"
#include "screens/RowList.h"
#include "screens/ScreenParts.h"
#include "screens/about/AboutAndUpdateCommands.h"
#include "screens/about/AboutView.h"
#include "screens/apps/AppDetailView.h"
#include "screens/apps/AppsView.h"
#include "screens/components/AppFilterPicker.h"
#include "screens/components/CurrencyBreakdown.h"
#include "screens/components/SyncButton.h"
#include "screens/dashboard/DashboardView.h"
#include "screens/history/HistoryView.h"
#include "screens/payouts/PayoutsView.h"
#include "screens/settings/SettingsView.h"
#include "screens/trends/ByDayView.h"
#include "screens/welcome/WelcomeView.h"
#include "screens/words/StatusLabel.h"

#include <memory>
#include <optional>

#include <QGuiApplication>
#include <QObject>

namespace vantrell {

/// The main window's content: the welcome without a key, else the screens behind the sidebar. It owns the
/// screens' models and keeps the data moving while it lives.
class RootView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft CONSTANT)
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool hasFigures READ hasFigures NOTIFY hasFiguresChanged)
    Q_PROPERTY(bool hasCredentials READ hasCredentials NOTIFY hasCredentialsChanged)
    Q_PROPERTY(vantrell::RowList* destinations READ destinations CONSTANT)
    Q_PROPERTY(vantrell::Destination::Value selection READ selection WRITE select NOTIFY selectionChanged)
    Q_PROPERTY(vantrell::Screen* shownScreen READ shownScreen NOTIFY shownScreenChanged)
    Q_PROPERTY(QString screenTitle READ screenTitle NOTIFY screenTitleChanged)
    Q_PROPERTY(vantrell::AppDetailView* appDetail READ appDetail NOTIFY appDetailChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY screenTitleChanged)
    Q_PROPERTY(bool hasToolbarControls READ hasToolbarControls NOTIFY selectionChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY footerChanged)
    Q_PROPERTY(QString storeNotice READ storeNotice NOTIFY storeNoticeChanged)
    Q_PROPERTY(vantrell::Tone::Value storeTone READ storeTone NOTIFY storeNoticeChanged)
    Q_PROPERTY(bool isSyncing READ isSyncing NOTIFY footerChanged)
    Q_PROPERTY(vantrell::AppFilterPicker* filter READ filter CONSTANT)
    Q_PROPERTY(vantrell::SyncButton* syncButton READ syncButton CONSTANT)
    Q_PROPERTY(vantrell::CurrencyBreakdown* breakdown READ breakdown CONSTANT)
    Q_PROPERTY(vantrell::DashboardView* dashboard READ dashboard CONSTANT)
    Q_PROPERTY(vantrell::AppsView* apps READ apps CONSTANT)
    Q_PROPERTY(vantrell::ByDayView* byDay READ byDay CONSTANT)
    Q_PROPERTY(vantrell::HistoryView* history READ history CONSTANT)
    Q_PROPERTY(vantrell::PayoutsView* payouts READ payouts CONSTANT)
    Q_PROPERTY(vantrell::SettingsView* settings READ settings CONSTANT)
    Q_PROPERTY(vantrell::WelcomeView* welcome READ welcome CONSTANT)
    Q_PROPERTY(vantrell::AboutView* about READ about CONSTANT)
    Q_PROPERTY(vantrell::AboutAndUpdateCommands* menu READ menu CONSTANT)

  public:
    explicit RootView(const ScreenParts& parts, QObject* parent = nullptr);

    /// Of the window; tells which store it is, if not the first.
    [[nodiscard]] QString title() const;
    /// By the language of the texts, and not by how dates and money are written.
    [[nodiscard]] bool isRightToLeft() const { return QGuiApplication::isRightToLeft(); }
    [[nodiscard]] bool isDark() const { return parts_.appearance.isDark(); }
    [[nodiscard]] bool reducesMotion() const { return parts_.appearance.reducesMotion(); }
    /// The first load is done, and with it what has to be there at once.
    [[nodiscard]] bool hasFigures() const { return parts_.store.isLoaded(); }
    /// Without credentials the welcome is all that is shown.
    [[nodiscard]] bool hasCredentials() const { return parts_.engine.hasCredentials(); }
    [[nodiscard]] RowList* destinations() { return &destinations_; }
    /// The dashboard as long as nothing was selected.
    [[nodiscard]] Destination::Value selection() const { return selection_.value_or(Destination::dashboard); }
    /// Null while the welcome is shown.
    [[nodiscard]] Screen* shownScreen();
    Q_INVOKABLE void select(vantrell::Destination::Value destination);
    /// Moves the selection along the sidebar, up for -1, and not past its ends.
    Q_INVOKABLE void selectNext(int steps);
    Q_INVOKABLE void showSettings() { select(Destination::settings); }
    [[nodiscard]] QString screenTitle() const;
    /// Lies over the selected screen until another is selected; null where no app is open.
    [[nodiscard]] AppDetailView* appDetail() const { return appDetail_.get(); }
    void openApp(std::int64_t appID);
    /// An app or the sync log is open.
    [[nodiscard]] bool canGoBack() const { return appDetail_ != nullptr || isLogShown(); }
    /// Does nothing where neither is open.
    Q_INVOKABLE void goBack();
    [[nodiscard]] bool hasToolbarControls() const { return selection() != Destination::settings; }
    /// What stands at the bottom of the sidebar; empty before the first run.
    [[nodiscard]] QString footer() const;
    [[nodiscard]] bool isSyncing() const { return parts_.engine.isSyncing(); }
    /// What stands above every screen and the welcome while the store isn't well; empty while it is.
    [[nodiscard]] QString storeNotice() const;
    [[nodiscard]] Tone::Value storeTone() const;

    [[nodiscard]] AppFilterPicker* filter() { return &filter_; }
    [[nodiscard]] SyncButton* syncButton() { return &syncButton_; }
    [[nodiscard]] CurrencyBreakdown* breakdown() { return &breakdown_; }
    [[nodiscard]] DashboardView* dashboard() { return &dashboard_; }
    [[nodiscard]] AppsView* apps() { return &apps_; }
    [[nodiscard]] ByDayView* byDay() { return &byDay_; }
    [[nodiscard]] HistoryView* history() { return &history_; }
    [[nodiscard]] PayoutsView* payouts() { return &payouts_; }
    [[nodiscard]] SettingsView* settings() { return &settings_; }
    [[nodiscard]] WelcomeView* welcome() { return &welcome_; }
    [[nodiscard]] AboutView* about() { return &about_; }
    [[nodiscard]] AboutAndUpdateCommands* menu() { return &menu_; }

    /// To be called once, when the window first appears.
    void appear();
    /// To be called whenever the window becomes active.
    void becomeActive();

  Q_SIGNALS:
    void isDarkChanged();
    void reducesMotionChanged();
    void hasFiguresChanged();
    void hasCredentialsChanged();
    void selectionChanged();
    void shownScreenChanged();
    void screenTitleChanged();
    void appDetailChanged();
    void footerChanged();
    void storeNoticeChanged();

  private:
    void showApp(std::unique_ptr<AppDetailView> detail);
    [[nodiscard]] bool isLogShown() const {
        return selection() == Destination::settings && settings_.isLogShown();
    }

    ScreenParts parts_;
    DriveLoop driveLoop_;
    AppIconStore icons_;
    RowList destinations_;
    std::optional<Destination::Value> selection_;
    AppFilterPicker filter_;
    SyncButton syncButton_;
    CurrencyBreakdown breakdown_;
    DashboardView dashboard_;
    AppsView apps_;
    ByDayView byDay_;
    HistoryView history_;
    PayoutsView payouts_;
    SettingsView settings_;
    WelcomeView welcome_;
    AboutView about_;
    AboutAndUpdateCommands menu_;
    std::unique_ptr<AppDetailView> appDetail_;
};

}  // namespace vantrell
