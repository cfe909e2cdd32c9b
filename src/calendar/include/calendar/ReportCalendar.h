#pragma once

#include "base/Clock.h"
#include "base/Instant.h"
#include "base/LocalTime.h"

#include <optional>
#include <string>

namespace vantrell {

/// What day it is, and which days and months lie how far back. Days are those of the user's zone, asked
/// afresh each time; fiscal periods are those of Los Angeles, wherever the user is. Steps are taken on
/// dates and not on instants, so that changes of clocks and zones neither lose nor repeat a day.
class ReportCalendar {
  public:
    /// Both must outlive the calendar.
    ReportCalendar(const Clock& clock, const LocalTime& localTime);

    [[nodiscard]] CivilDate today() const;
    /// The day that the user's calendar shows at `instant`.
    [[nodiscard]] CivilDate dateAt(Instant instant) const;
    /// Absent where the calendar has no such day.
    [[nodiscard]] std::optional<CivilDate> dateDaysAgo(int days) const;
    /// Today's day in an earlier month, or that month's last day. Absent as above.
    [[nodiscard]] std::optional<CivilDate> dateMonthsAgo(int months) const;

    /// Keys of the same; where the calendar has no such day, that of today.
    [[nodiscard]] std::string dayKey(int daysAgo) const;
    [[nodiscard]] std::string monthKey(int monthsAgo) const;
    [[nodiscard]] int currentYear() const;
    [[nodiscard]] std::string currentYearLabel() const;

    /// The day that the service's own calendar shows at `instant`.
    [[nodiscard]] CivilDate pacificDateAt(Instant instant) const;
    [[nodiscard]] std::string fiscalPeriodAt(Instant instant) const;
    [[nodiscard]] std::string currentFiscalPeriod() const;

  private:
    const Clock* clock_;
    const LocalTime* localTime_;
    std::optional<TimeZone> pacific_;
};

}  // namespace vantrell
