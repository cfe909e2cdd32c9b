#pragma once

#include "screens/ScreenParts.h"
#include "screens/components/DateField.h"
#include "screens/components/Question.h"
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
    Q_PROPERTY(vantrell::SyncBanner* banner READ banner CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)
    Q_PROPERTY(vantrell::DateField* day READ day CONSTANT)
    Q_PROPERTY(vantrell::Question* dayQuestion READ dayQuestion CONSTANT)
    Q_PROPERTY(vantrell::Question* monthQuestion READ monthQuestion CONSTANT)
    Q_PROPERTY(bool canFetchDay READ canFetchDay NOTIFY requestsChanged)
    Q_PROPERTY(QString month READ month WRITE setMonth NOTIFY requestsChanged)
    Q_PROPERTY(QString monthProblem READ monthProblem NOTIFY requestsChanged)
    Q_PROPERTY(bool canFetchMonth READ canFetchMonth NOTIFY requestsChanged)

  public:
    explicit SyncSettings(const ScreenParts& parts, QObject* parent = nullptr);

    [[nodiscard]] SyncBanner* banner() { return &banner_; }
    [[nodiscard]] QString summary() const;

    Q_INVOKABLE void sync() { parts_.tasks.spawn(parts_.engine.runSync()); }
    Q_INVOKABLE void backfill() { parts_.tasks.spawn(parts_.engine.runBackfill()); }

    /// Today at first, and at the latest.
    [[nodiscard]] DateField* day() { return &day_; }
    [[nodiscard]] bool canFetchDay() const { return !parts_.engine.isSyncing(); }
    /// Asks first where Apple has no more of the day, and lines of it are stored.
    Q_INVOKABLE void fetchDay();
    [[nodiscard]] Question* dayQuestion() { return &dayQuestion_; }

    [[nodiscard]] QString month() const { return month_; }
    void setMonth(const QString& month);
    /// Why nothing was fetched; empty once the text is another.
    [[nodiscard]] QString monthProblem() const { return monthProblem_; }
    /// No run is under way, and there is a text, be it a month or not.
    [[nodiscard]] bool canFetchMonth() const;
    /// Likewise.
    Q_INVOKABLE void fetchMonth();
    [[nodiscard]] Question* monthQuestion() { return &monthQuestion_; }

    /// To be called whenever the screen comes into sight.
    void appear();

  Q_SIGNALS:
    void summaryChanged();
    void requestsChanged();

  private:
    void chooseDay(CivilDate day);
    void fetchDayNow();
    void fetchMonthNow();

    ScreenParts parts_;
    SyncBanner banner_;
    CivilDate chosenDay_;
    DateField day_;
    QString month_;
    QString monthProblem_;
    Question dayQuestion_;
    Question monthQuestion_;
};

}  // namespace vantrell
