#include "calendar/DayKey.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

TEST(DayKey, LabelsAreOfFixedWidthSoThatTheyCompareAsText) {
    const CivilDate day = 987y / 3 / 4;
    EXPECT_EQ(reportLabel(day, ReportFrequency::daily), "0987-03-04");
    EXPECT_EQ(reportLabel(day, ReportFrequency::monthly), "0987-03");
    EXPECT_EQ(reportLabel(day, ReportFrequency::yearly), "0987");
}

TEST(DayKey, KeysAreReadAsALenientCalendarWould) {
    const struct {
        std::string name;
        std::string text;
        std::optional<CivilDate> expected;
    } cases[] = {
        {"plain", "2026-08-14", 2026y / 8 / 14},
        {"a day past its month", "2026-02-31", 2026y / 3 / 3},
        {"a month past its year", "2026-14-01", 2027y / 2 / 1},
        {"month and day of zero", "2026-00-00", 2025y / 11 / 30},
        {"the first day", "0001-01-01", 1y / 1 / 1},
        {"the last day", "9999-12-31", 9999y / 12 / 31},
        {"before the first day", "0001-01-00", std::nullopt},
        {"after the last day", "9999-12-32", std::nullopt},
        {"a huge month", "2026-9223372036854775807-01", std::nullopt},
        {"a year beyond any number", "99999999999999999999-01-01", std::nullopt},
        {"four parts", "2026-08-14-1", std::nullopt},
        {"a dash in front", "-2026-08-14", std::nullopt},
        {"letters", "2026-08-1x", std::nullopt},
        {"nothing", "", std::nullopt},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(dateFromDayKey(row.text), row.expected) << row.name;
    }
}

TEST(DayKey, ARangeHoldsEveryDayOnceAndBothEndsUpToABound) {
    const auto range = days("2024-02-28", "2024-03-01");
    const std::vector<KeyedDay> expected{
        {"2024-02-28", 2024y / 2 / 28}, {"2024-02-29", 2024y / 2 / 29}, {"2024-03-01", 2024y / 3 / 1}};
    EXPECT_EQ(range, expected);
    EXPECT_EQ(days("2026-02-31", "2026-03-03").at(0).key, "2026-03-03");
    EXPECT_TRUE(days("2026-03-02", "2026-03-01").empty());
    EXPECT_TRUE(days("2026-03-02", "soon").empty());
    const auto hostile = days("0001-01-01", "9999-12-31");
    ASSERT_EQ(hostile.size(), maxDaysInRange);
    EXPECT_EQ(hostile.back().key, "9999-12-31");
}

TEST(DayKey, MonthsAreTakenBackToTheLastDayThatThereIs) {
    EXPECT_EQ(movedByMonths(2026y / 3 / 31, -1), 2026y / 2 / 28);
    EXPECT_EQ(movedByMonths(2024y / 3 / 31, -1), 2024y / 2 / 29);
    EXPECT_EQ(movedByMonths(2026y / 1 / 15, -13), 2024y / 12 / 15);
    EXPECT_EQ(movedByMonths(2026y / 1 / 1, std::numeric_limits<std::int64_t>::min()), std::nullopt);
    EXPECT_EQ(movedByDays(2026y / 1 / 1, std::numeric_limits<std::int64_t>::max()), std::nullopt);
}

}  // namespace
}  // namespace vantrell
