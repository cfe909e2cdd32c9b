#pragma once

#include "locale/Locale.h"
#include "screens/RowList.h"

#include <optional>

#include <QObject>
#include <QString>
#include <QStringList>

namespace vantrell {

/// One day on the leaf of a calendar.
struct MonthDay {
    Q_GADGET
    QML_VALUE_TYPE(monthDay)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(bool isInMonth MEMBER isInMonth)
    Q_PROPERTY(bool isEnabled MEMBER isEnabled)
    Q_PROPERTY(bool isChosen MEMBER isChosen)
    Q_PROPERTY(bool isToday MEMBER isToday)
    Q_PROPERTY(bool hasCursor MEMBER hasCursor)

  public:
    QString text;
    QString spoken;
    bool isInMonth = false;  ///< the others fill up the first and last week
    bool isEnabled = false;
    bool isChosen = false;
    bool isToday = false;
    bool hasCursor = false;
    bool operator==(const MonthDay&) const = default;
};

/// The days that may be chosen, both ends included.
struct DayLimits {
    std::optional<CivilDate> earliest;
    CivilDate latest;
    bool operator==(const DayLimits&) const = default;
};

/// The leaf of a calendar, from which a day is chosen. The arrow keys move a cursor, which never leaves the
/// limits.
class MonthGrid : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    Q_PROPERTY(vantrell::RowList* days READ days CONSTANT)
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY changed)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY changed)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY changed)

  public:
    /// The locale must outlive the grid.
    explicit MonthGrid(const Locale& locale, QObject* parent = nullptr);

    /// Shows the month of `chosen`.
    void open(CivilDate chosen, const DayLimits& limits, CivilDate today);

    /// The month, such as "March 2026".
    [[nodiscard]] QString title() const;
    [[nodiscard]] QStringList weekdays() const;
    /// Six weeks.
    [[nodiscard]] RowList* days() { return &days_; }
    /// The day under the cursor, for whoever can't see it.
    [[nodiscard]] QString cursorText() const;
    [[nodiscard]] bool hasPrevious() const;
    [[nodiscard]] bool hasNext() const;

    Q_INVOKABLE void moveByDays(int days);
    Q_INVOKABLE void moveByMonths(int months);
    Q_INVOKABLE void pickCursor() { Q_EMIT picked(cursor_); }
    /// The place of a day; one that isn't enabled changes nothing.
    Q_INVOKABLE void pick(int place);

  Q_SIGNALS:
    void changed();
    void picked(std::chrono::year_month_day day);

  private:
    void moveTo(std::optional<CivilDate> day);
    [[nodiscard]] bool isAllowed(CivilDate day) const;
    [[nodiscard]] CivilDate firstShown() const;
    [[nodiscard]] MonthDay monthDay(CivilDate day) const;

    const Locale& locale_;
    CivilDate chosen_;
    CivilDate cursor_;
    CivilDate today_;
    DayLimits limits_;
    RowList days_;
};

}  // namespace vantrell
