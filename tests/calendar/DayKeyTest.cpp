#include "calendar/DayKey.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

using namespace std::chrono_literals;

TEST(DayKey, KeysAreReadAsALenientCalendarWould) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/day-keys.tsv", [](const std::string& text) {
        const auto date = dateFromDayKey(text);
        return date ? dayKey(*date) : "none";
    });
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
