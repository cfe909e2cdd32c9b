#include "calendar/ReportCalendar.h"
#include "testing/FixedLocalTime.h"
#include "testing/ManualClock.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// The C library's own reading of the zone that TZ names.
std::tm wallOf(std::time_t instant) {
    std::tm wall{};
    ::localtime_r(&instant, &wall);
    return wall;
}

/// The day so many days later, or the month so many months later.
std::string moved(std::tm wall, int days, int months = 0) {
    wall.tm_mday = months == 0 ? wall.tm_mday + days : 1;
    wall.tm_mon += months;
    wall.tm_hour = 12;
    const std::time_t noon = ::timegm(&wall);
    ::gmtime_r(&noon, &wall);
    char room[64];
    return {room, std::strftime(room, sizeof(room), months == 0 ? "%Y-%m-%d" : "%Y-%m", &wall)};
}

std::vector<std::string> zonesOfTheSystem() {
    const fs::path database = "/usr/share/zoneinfo";
    std::vector<std::string> names;
    for (auto entry = fs::recursive_directory_iterator(database); entry != fs::end(entry); ++entry) {
        const std::string name = entry->path().lexically_relative(database);
        if (name == "posix" || name == "right") {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file() && TimeZone::named(name)) {
            names.push_back(name);
        }
    }
    return names;
}

// Every so many seconds from 2008 to 2030 in every zone; a longer run takes closer steps.
TEST(ReportCalendar, LabelsInAllZonesAreThoseOfTheCLibrary) {
    const char* const asked = std::getenv("VANTRELL_LABEL_STEP");
    const std::time_t step = asked == nullptr ? 7'000'003 : std::atol(asked);
    const std::string before = std::getenv("TZ");
    std::map<std::time_t, std::string> fiscal;
    ::setenv("TZ", "America/Los_Angeles", 1);
    for (std::time_t instant = 1'199'145'600; instant < 1'924'992'000; instant += step) {
        fiscal[instant] = moved(wallOf(instant), 0, 3);  // a fiscal year begins in October
    }
    std::size_t labels = 0;
    std::size_t wrong = 0;
    const auto zones = zonesOfTheSystem();
    for (const std::string& name : zones) {
        ::setenv("TZ", (":" + name).c_str(), 1);
        ::tzset();
        const testing::FixedLocalTime zone(name);
        testing::ManualClock clock;
        const ReportCalendar calendar(clock, zone);
        for (const auto& [instant, period] : fiscal) {
            clock.setNow(Instant(std::chrono::seconds(instant)));
            const std::tm wall = wallOf(instant);
            const bool isRight = calendar.dayKey(0) == moved(wall, 0) &&
                                 calendar.dayKey(365) == moved(wall, -365) &&
                                 calendar.monthKey(1) == moved(wall, 0, -1) &&
                                 calendar.currentYearLabel() == std::to_string(wall.tm_year + 1900) &&
                                 calendar.currentFiscalPeriod() == period;
            labels += 5;
            wrong += isRight ? 0 : 1;
            EXPECT_TRUE(isRight || wrong > 10) << name << " at " << instant << ": " << calendar.dayKey(0);
        }
    }
    ::setenv("TZ", before.c_str(), 1);
    ::tzset();
    EXPECT_GT(zones.size(), 500U);
    EXPECT_EQ(wrong, 0U);
    std::printf("labels: %zu in %zu zones, wrong %zu\n", labels, zones.size(), wrong);
}

TEST(ReportCalendar, FiscalPeriodsTurnAtMidnightInLosAngelesWhereverTheUserIs) {
    const testing::ManualClock clock(std::chrono::sys_days(2026y / 10 / 1) + 6h + 59min);
    const testing::FixedLocalTime zone("Pacific/Kiritimati");
    const ReportCalendar calendar(clock, zone);
    EXPECT_EQ(calendar.currentFiscalPeriod(), "2026-12");
    EXPECT_EQ(calendar.fiscalPeriodAt(clock.now() + 1min), "2027-01");
}

}  // namespace
}  // namespace vantrell
