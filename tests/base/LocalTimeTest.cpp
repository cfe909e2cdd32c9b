#include "base/LocalTime.h"
#include "testing/Cases.h"
#include "testing/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using Text = const std::string&;

TEST(LocalTime, HasADayBeforeTheEpochAndBeyondEveryCalendar) {
    const auto utc = TimeZone::named("UTC").value();
    EXPECT_EQ(utc.dateAt(std::chrono::sys_days(1970y / 1 / 1) - 1us), 1969y / 12 / 31);
    EXPECT_EQ(utc.dateAt(Instant::max()), std::chrono::year::max() / 12 / 31);
}

TEST(LocalTime, NoonIsTwelveOnTheWallOrTheMomentAfterTheGap) {
    testing::expectCases<2>(VANTRELL_TEST_DATA "/noons.tsv", [](Text zone, Text day) {
        const CivilDate date =
            std::chrono::year(std::stoi(day)) / std::stoi(day.substr(5)) / std::stoi(day.substr(8));
        return testing::textOf(TimeZone::named(zone)->noonOf(date));
    });
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
    testing::expectCases<1>(VANTRELL_TEST_DATA "/host-zones.tsv", [&host](Text setting) {
        ::setenv("TZ", setting.c_str(), 1);
        return testing::textOf(host.zone().noonOf(2026y / 7 / 1));
    });
    // A file that isn't the database's own tells its rules but not its name.
    const testing::TemporaryFolder folder;
    const auto file = folder / "here";
    std::filesystem::copy_file("/usr/share/zoneinfo/Europe/Berlin", file);
    ::setenv("TZ", (":" + file.string()).c_str(), 1);
    EXPECT_EQ(testing::textOf(host.zone().noonOf(2026y / 7 / 1)), "2026-07-01T10:00:00Z");
    ::mkfifo((folder / "pipe").c_str(), S_IRUSR | S_IWUSR);
    ::setenv("TZ", (folder / "pipe").c_str(), 1);
    EXPECT_EQ(testing::textOf(host.zone().noonOf(2026y / 7 / 1)), "2026-07-01T12:00:00Z");
    ::setenv("TZ", before.c_str(), 1);
}

}  // namespace
}  // namespace vantrell
