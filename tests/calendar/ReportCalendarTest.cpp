#include "calendar/DayKey.h"
#include "calendar/ReportCalendar.h"
#include "testing/FixedLocalTime.h"
#include "testing/ManualClock.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using testing::FixedLocalTime;
using testing::ManualClock;

TEST(ReportCalendar, DaysAndMonthsBackAreThoseOfTheUsersZone) {
    const struct {
        std::string name;
        std::string zone;
        Instant now;
        std::string today;
        std::string yesterday;
        std::string lastMonth;
    } cases[] = {
        {"the long day in Los Angeles", "America/Los_Angeles", sys_days(2026y / 11 / 2) + 7h + 59min,
         "2026-11-01", "2026-10-31", "2026-10"},
        {"after the day that Samoa left out", "Pacific/Apia", sys_days(2011y / 12 / 30) + 10h, "2011-12-31",
         "2011-12-30", "2011-11"},
        {"a day without midnight", "America/Sao_Paulo", sys_days(2018y / 11 / 4) + 3h, "2018-11-04",
         "2018-11-03", "2018-10"},
        {"a quarter of an hour before the year", "Asia/Kathmandu", sys_days(2025y / 12 / 31) + 18h,
         "2025-12-31", "2025-12-30", "2025-11"},
        {"the end of a long month", "UTC", sys_days(2026y / 3 / 31), "2026-03-31", "2026-03-30", "2026-02"},
    };
    for (const auto& row : cases) {
        const ManualClock clock(row.now);
        const FixedLocalTime zone(row.zone);
        const ReportCalendar calendar(clock, zone);
        EXPECT_EQ(dayKey(calendar.today()), row.today) << row.name;
        EXPECT_EQ(calendar.dayKey(1), row.yesterday) << row.name;
        EXPECT_EQ(calendar.monthKey(1), row.lastMonth) << row.name;
        EXPECT_EQ(calendar.currentYearLabel(), row.today.substr(0, 4)) << row.name;
    }
}

TEST(ReportCalendar, AYearOfOffsetsNamesEveryDayOnceInEveryZone) {
    const ManualClock clock(sys_days(2012y / 3 / 1) + 11h);
    for (const std::string name : {"Pacific/Apia", "America/Sao_Paulo", "Europe/Berlin"}) {
        const FixedLocalTime zone(name);
        const ReportCalendar calendar(clock, zone);
        const auto range = days(calendar.dayKey(365), calendar.dayKey(1));
        ASSERT_EQ(range.size(), 365U) << name;
        for (int offset = 1; offset <= 365; ++offset) {
            EXPECT_EQ(calendar.dayKey(offset), range.at(range.size() - static_cast<std::size_t>(offset)).key);
        }
    }
}

TEST(ReportCalendar, FollowsTheClockAndTheTravellingUser) {
    ManualClock clock(sys_days(2025y / 12 / 31) + 23h + 30min);
    FixedLocalTime zone("America/Los_Angeles");
    const ReportCalendar calendar(clock, zone);
    EXPECT_EQ(calendar.currentYear(), 2025);
    zone.setZone("Asia/Tokyo");
    EXPECT_EQ(calendar.currentYear(), 2026);
    clock.advance(16h);
    EXPECT_EQ(calendar.dayKey(0), "2026-01-02");
}

TEST(ReportCalendar, FiscalPeriodsTurnAtMidnightInLosAngelesWhereverTheUserIs) {
    ManualClock clock(sys_days(2026y / 10 / 1) + 6h + 59min);
    for (const std::string name : {"America/Los_Angeles", "Pacific/Kiritimati", "Europe/Berlin"}) {
        const FixedLocalTime zone(name);
        const ReportCalendar calendar(clock, zone);
        EXPECT_EQ(calendar.currentFiscalPeriod(), "2026-12") << name;
        EXPECT_EQ(calendar.fiscalPeriodAt(clock.now() + 1min), "2027-01") << name;
    }
}

}  // namespace
}  // namespace vantrell
