#pragma once

#include "figures/Coverage.h"
#include "locale/Locale.h"
#include "screens/RowList.h"

#include <vector>

#include <QObject>
#include <QString>

namespace vantrell {

/// One day of the strip: its place and what is known of its report, as the store names it.
struct StripDay {
    Q_GADGET
    QML_VALUE_TYPE(stripDay)
    Q_PROPERTY(int week MEMBER week)
    Q_PROPERTY(int weekday MEMBER weekday)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString text MEMBER text)

  public:
    int week = 0;
    int weekday = 0;  ///< 0 is the locale's first
    QString status;
    QString text;  ///< such as "Tue, Mar 3, 2026 · No sales"
    bool operator==(const StripDay&) const = default;
};

/// The name of a month above the week in which it begins.
struct StripMonth {
    Q_GADGET
    QML_VALUE_TYPE(stripMonth)
    Q_PROPERTY(int week MEMBER week)
    Q_PROPERTY(QString text MEMBER text)

  public:
    int week = 0;
    QString text;
    bool operator==(const StripMonth&) const = default;
};

/// How many days of the strip have one status, as its legend.
struct StripCount {
    Q_GADGET
    QML_VALUE_TYPE(stripCount)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QString text MEMBER text)

  public:
    QString status;
    QString text;  ///< such as "No sales 12"
    bool operator==(const StripCount&) const = default;
};

/// A calendar of the days that the service keeps, a column a week, which tells of each whether its report is
/// stored.
class CoverageStrip : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by HistoryView")
    Q_PROPERTY(vantrell::RowList* days READ days CONSTANT)
    Q_PROPERTY(vantrell::RowList* months READ months CONSTANT)
    Q_PROPERTY(vantrell::RowList* counts READ counts CONSTANT)
    Q_PROPERTY(int weeks READ weeks NOTIFY changed)
    Q_PROPERTY(int selection READ selection NOTIFY changed)
    Q_PROPERTY(vantrell::StripDay selected READ selected NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)

  public:
    /// The locale must outlive the strip.
    explicit CoverageStrip(const Locale& locale, QObject* parent = nullptr);

    /// Oldest first, without a hole.
    void show(const std::vector<CoveredDay>& days);

    [[nodiscard]] RowList* days() { return &days_; }
    [[nodiscard]] RowList* months() { return &months_; }
    /// Of the statuses that occur, as their legend.
    [[nodiscard]] RowList* counts() { return &counts_; }
    [[nodiscard]] int weeks() const;
    /// The place of the chosen day, or -1.
    [[nodiscard]] int selection() const { return selection_; }
    [[nodiscard]] StripDay selected() const;
    /// All counts in one sentence.
    [[nodiscard]] QString summary() const;

    /// Chooses the day at a place; a place without a day chooses none.
    Q_INVOKABLE void selectAt(int week, int weekday);
    Q_INVOKABLE void moveByDays(int days);
    Q_INVOKABLE void clearSelection() { select(-1); }

  Q_SIGNALS:
    void changed();

  private:
    void select(int place);
    void showMonths(const std::vector<CoveredDay>& days);
    void showCounts(const std::vector<CoveredDay>& days);

    const Locale& locale_;
    RowList days_;
    RowList months_;
    RowList counts_;
    int selection_ = -1;
};

}  // namespace vantrell
