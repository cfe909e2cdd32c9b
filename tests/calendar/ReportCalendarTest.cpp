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
