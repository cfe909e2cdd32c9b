#include "platform/LocalTime.h"

#include <chrono>
#include <cstdlib>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

Instant at(CivilDate day, std::chrono::minutes time) {
    return sys_days(day) + time;
}

TEST(LocalTime, HasADayBeforeTheEpochAndBeyondEveryCalendar) {
    const auto utc = TimeZone::named("UTC").value();
    EXPECT_EQ(utc.dateAt(at(1969y / 12 / 31, 24h) - 1us), 1969y / 12 / 31);
    EXPECT_EQ(utc.dateAt(Instant::max()), std::chrono::year::max() / 12 / 31);
}

TEST(LocalTime, NoonIsTwelveOnTheWallOrTheMomentAfterTheGap) {
    const struct {
        std::string name;
        std::string zone;
        CivilDate day;
        Instant noon;
    } cases[] = {
        {"the day the clocks go forward", "Europe/Berlin", 2026y / 3 / 29, at(2026y / 3 / 29, 10h)},
        {"a day that was left out", "Pacific/Apia", 2011y / 12 / 30, at(2011y / 12 / 30, 10h)},
        {"a day carried over the end of its month", "UTC", 2026y / 2 / 31, at(2026y / 3 / 3, 12h)},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(TimeZone::named(row.zone)->noonOf(row.day), row.noon) << row.name;
    }
}

TEST(LocalTime, OnlyZonesOfTheDatabaseHaveNames) {
    EXPECT_EQ(TimeZone::named("Asia/Tokyo")->id(), "Asia/Tokyo");
    for (const std::string name : {"", "Nowhere/City", "europe/berlin", "\xFF", "GMT+5", "Etc/Unknown"}) {
        EXPECT_FALSE(TimeZone::named(name)) << name;
    }
}

TEST(LocalTime, TheHostZoneFollowsTheVariableWhileTheProgramRuns) {
    const HostLocalTime host;
    const std::string before = std::getenv("TZ");
    const auto summerNoon = 2026y / 7 / 1;
    const struct {
        const char* setting;
        std::chrono::hours utcNoon;
    } cases[] = {
        {"America/Los_Angeles", 19h},
        {":Asia/Tokyo", 3h},
        {"/usr/share/zoneinfo/Europe/Berlin", 10h},
        {"JST-9", 3h},
        {"Nowhere/City", 12h},
    };
    for (const auto& row : cases) {
        ::setenv("TZ", row.setting, 1);
        EXPECT_EQ(host.zone().noonOf(summerNoon), at(summerNoon, row.utcNoon)) << row.setting;
    }
    ::setenv("TZ", before.c_str(), 1);
}

}  // namespace
}  // namespace vantrell
