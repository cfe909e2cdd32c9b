#include "screens/components/DateField.h"

#include "screens/components/ShownText.h"

#include <utility>

namespace vantrell {

DateField::DateField(const Locale& locale, QString title, QObject* parent)
    : QObject(parent),
      locale_(locale),
      title_(std::move(title)),
      date_(std::chrono::sys_days()),
      limits_{std::nullopt, date_},
      today_(date_),
      grid_(locale) {
    connect(&grid_, &MonthGrid::picked, this, &DateField::picked);
}

QString DateField::text() const {
    return fromUtf8(locale_.date(date_));
}

QString DateField::spoken() const {
    return title_ + QStringLiteral(", ") + fromUtf8(locale_.wideWeekdayDate(date_));
}

void DateField::openGrid() {
    Q_EMIT opening();
    grid_.open(date_, limits_, today_);
}

void DateField::show(CivilDate date, const DayLimits& limits, CivilDate today) {
    limits_ = limits;
    today_ = today;
    if (date != date_) {
        date_ = date;
        Q_EMIT changed();
    }
}

}  // namespace vantrell
