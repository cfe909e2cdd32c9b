#pragma once

#include "screens/ScreenParts.h"
#include "screens/components/DateField.h"
#include "screens/components/SyncBanner.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vantrell {

/// The runs and re-fetches that the user starts by hand.
class SyncSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(vantrell::SyncBanner* banner READ banner CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)
    Q_PROPERTY(QString syncText READ syncText CONSTANT)
    Q_PROPERTY(QString backfillText READ backfillText CONSTANT)
    Q_PROPERTY(QString fetchText READ fetchText CONSTANT)
    Q_PROPERTY(QString dayLabel READ dayLabel CONSTANT)
    Q_PROPERTY(vantrell::DateField* day READ day CONSTANT)
    Q_PROPERTY(bool canFetchDay READ canFetchDay NOTIFY requestsChanged)
    Q_PROPERTY(QString monthLabel READ monthLabel CONSTANT)
    Q_PROPERTY(QString month READ month WRITE setMonth NOTIFY requestsChanged)
    Q_PROPERTY(bool canFetchMonth READ canFetchMonth NOTIFY requestsChanged)
    Q_PROPERTY(QString logText READ logText CONSTANT)
    Q_PROPERTY(QString caption READ caption CONSTANT)

  public:
    explicit SyncSettings(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] QString title() const { return tr("Sync"); }
    [[nodiscard]] SyncBanner* banner() { return &banner_; }
    [[nodiscard]] QString summary() const;

    [[nodiscard]] QString syncText() const { return tr("Sync Now"); }
    Q_INVOKABLE void sync() { parts_.tasks.spawn(parts_.engine.runSync()); }
    [[nodiscard]] QString backfillText() const { return tr("Full Backfill"); }
    Q_INVOKABLE void backfill() { parts_.tasks.spawn(parts_.engine.runBackfill()); }

    [[nodiscard]] QString fetchText() const { return tr("Fetch"); }
    [[nodiscard]] QString dayLabel() const { return tr("Re-fetch one day"); }
    /// Today at first, and at the latest.
    [[nodiscard]] DateField* day() { return &day_; }
    [[nodiscard]] bool canFetchDay() const { return !parts_.engine.isSyncing(); }
    Q_INVOKABLE void fetchDay();

    [[nodiscard]] QString monthLabel() const { return tr("Re-fetch a month (2026-08)"); }
    [[nodiscard]] QString month() const { return month_; }
    void setMonth(const QString& month);
    /// No run is under way, and there is a text; whether it is a month the engine says.
    [[nodiscard]] bool canFetchMonth() const;
    Q_INVOKABLE void fetchMonth();

    [[nodiscard]] QString logText() const { return tr("Sync Log"); }
    [[nodiscard]] QString caption() const;

    /// To be called whenever the screen comes into sight.
    void appear();

  Q_SIGNALS:
    void summaryChanged();
    void requestsChanged();

  private:
    void chooseDay(CivilDate day);

    ScreenParts parts_;
    SyncBanner banner_;
    CivilDate chosenDay_;
    DateField day_;
    QString month_;
};

}  // namespace vantrell
