#pragma once

#include "screens/components/MonthGrid.h"

namespace vantrell {

/// A date that the user chooses from a calendar.
class DateField : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)
    Q_PROPERTY(vantrell::MonthGrid* grid READ grid CONSTANT)

  public:
    /// The locale must outlive the field.
    DateField(const Locale& locale, QString title, QObject* parent = nullptr);

    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString spoken() const;
    [[nodiscard]] MonthGrid* grid() { return &grid_; }

    /// The date may lie outside of the limits, which count for what is chosen next.
    void show(CivilDate date, const DayLimits& limits, CivilDate today);
    Q_INVOKABLE void openGrid();

  Q_SIGNALS:
    void changed();
    /// The calendar is about to open; whoever knows the limits of today shows them now.
    void opening();
    void picked(std::chrono::year_month_day date);

  private:
    const Locale& locale_;
    const QString title_;
    CivilDate date_;
    DayLimits limits_;
    CivilDate today_;
    MonthGrid grid_;
};

}  // namespace vantrell
