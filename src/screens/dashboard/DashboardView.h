#pragma once

#include "screens/RowList.h"
#include "screens/Screen.h"
#include "screens/charts/DailyProceedsChart.h"
#include "screens/components/EmptyState.h"
#include "screens/components/SyncBanner.h"
#include "screens/day/DaySheet.h"

namespace vantrell {

/// The first screen: what came in lately at a glance.
class DashboardView : public vantrell::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by RootView")
    Q_PROPERTY(vantrell::SyncBanner* banner READ banner CONSTANT)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
    Q_PROPERTY(vantrell::EmptyState emptyState READ emptyState NOTIFY isEmptyChanged)
    Q_PROPERTY(vantrell::RowList* tiles READ tiles CONSTANT)
    Q_PROPERTY(QString lacking READ lacking NOTIFY lackingChanged)
    Q_PROPERTY(vantrell::DailyProceedsChart* chart READ chart CONSTANT)
    Q_PROPERTY(vantrell::DaySheet* selectedDay READ selectedDay CONSTANT)

  public:
    explicit DashboardView(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] SyncBanner* banner() { return &banner_; }
    /// What stopped or prevented the last run; empty if nothing did.
    [[nodiscard]] QString error() const;
    /// No line is stored and none is on its way.
    [[nodiscard]] bool isEmpty() const { return isEmpty_; }
    [[nodiscard]] EmptyState emptyState() const;
    [[nodiscard]] RowList* tiles() { return &tiles_; }
    /// The last 30 days.
    [[nodiscard]] DailyProceedsChart* chart() { return &chart_; }
    [[nodiscard]] DaySheet* selectedDay() { return &selectedDay_; }

    /// Which days that count in the figures aren't known, though they could be; empty if none.
    [[nodiscard]] QString lacking() const { return lacking_; }

    Q_INVOKABLE void openLog() { Q_EMIT logWanted(); }

  Q_SIGNALS:
    void errorChanged();
    void isEmptyChanged();
    void lackingChanged();
    void logWanted();

  private:
    void refresh() override;
    void refreshEmptiness();

    SyncBanner banner_;
    DaySheet selectedDay_;
    RowList tiles_;
    DailyProceedsChart chart_;
    QString lacking_;
    bool isEmpty_ = false;
};

}  // namespace vantrell
