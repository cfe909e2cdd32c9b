#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/FiscalWeeks.h"
#include "calendar/ReportSchedule.h"
#include "testing/Cases.h"

#include <array>

#include <gmock/gmock.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FiscalPeriod, TheYearBeginsInOctober) {
    EXPECT_EQ(fiscalPeriod(2025y / 10 / 1), "2026-01");
    EXPECT_EQ(fiscalPeriod(2026y / 1 / 1), "2026-04");
    EXPECT_EQ(fiscalPeriod(2026y / 9 / 30), "2026-12");
}

TEST(FiscalPeriod, ReadsTwoWholeNumbersAndNothingElse) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/fiscal-periods.tsv", [](const std::string& text) {
        const auto period = parseFiscalPeriod(text);
        return period ? std::to_string(period->year) + " " + std::to_string(period->month) : "none";
    });
}

TEST(FiscalPeriod, EndsWithASaturdayAfterItsWeeks) {
    const std::array<const char*, 12> ends = {"2025-11-01", "2025-11-29", "2025-12-27", "2026-01-31",
                                              "2026-02-28", "2026-03-28", "2026-05-02", "2026-05-30",
                                              "2026-06-27", "2026-08-01", "2026-08-29", "2026-09-26"};
    for (std::size_t month = 0; month < ends.size(); ++month) {
        const std::string period = yearMonthText({2026, static_cast<std::int64_t>(month) + 1});
        EXPECT_EQ(dayKey(lastDayOfFiscalPeriod(period).value()), ends[month]);
    }
    EXPECT_EQ(lastDayOfFiscalPeriod("2023-02"), 2022y / 11 / 26);
    EXPECT_EQ(lastDayOfFiscalPeriod("2023-03"), 2022y / 12 / 31) << "a year of 53 weeks";
    EXPECT_EQ(lastDayOfFiscalPeriod("2023-12"), 2023y / 9 / 30);
    EXPECT_EQ(lastDayOfFiscalPeriod("10000-01"), std::nullopt);
}

TEST(FiscalPeriod, TheSuccessorOfWhatIsNoPeriodIsItself) {
    EXPECT_EQ(nextFiscalPeriod("2026-12"), "2027-01");
    EXPECT_EQ(nextFiscalPeriod(financeSeed), "2024-01");
    EXPECT_EQ(nextFiscalPeriod("later"), "later");
    EXPECT_EQ(nextFiscalPeriod("9223372036854775807-12"), "9223372036854775807-12");
}

TEST(FiscalPeriod, AListIncludesBothEndsAndHasABound) {
    EXPECT_THAT(fiscalPeriods("2025-11", "2026-02"), ElementsAre("2025-11", "2025-12", "2026-01", "2026-02"));
    EXPECT_THAT(fiscalPeriods("2026-04", "2026-03"), IsEmpty());
    EXPECT_THAT(fiscalPeriods("2026-03", "later"), IsEmpty());
    const auto many = fiscalPeriods("2001-01", "9999-12");
    ASSERT_EQ(many.size(), 400U);
    EXPECT_EQ(many.back(), "2034-04");
}

}  // namespace
}  // namespace vantrell
