#include "calendar/DayKey.h"
#include "calendar/FiscalPeriod.h"
#include "calendar/FiscalWeeks.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

TEST(FiscalPeriod, ReadsTwoWholeNumbersAndWhatIsNoneIsItsOwnSuccessor) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/fiscal-periods.tsv", [](const std::string& text) {
        const auto period = parseFiscalPeriod(text);
        return (period ? std::to_string(period->year) + " " + std::to_string(period->month) : "none") +
               ", then " + nextFiscalPeriod(text);
    });
}

TEST(FiscalPeriod, EndsWithASaturdayAfterItsWeeks) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/ends.tsv", [](const std::string& period) {
        const auto last = lastDayOfFiscalPeriod(period);
        return last ? dayKey(*last) : "none";
    });
}

TEST(FiscalPeriod, AListIncludesBothEndsAndHasABound) {
    EXPECT_EQ(fiscalPeriods("2025-12", "2026-01"), (std::vector<std::string>{"2025-12", "2026-01"}));
    EXPECT_TRUE(fiscalPeriods("2026-04", "2026-03").empty());
    EXPECT_TRUE(fiscalPeriods("2026-03", "later").empty());
    const auto many = fiscalPeriods("2001-01", "9999-12");
    ASSERT_EQ(many.size(), 400U);
    EXPECT_EQ(many.back(), "2034-04");
}

}  // namespace
}  // namespace vantrell
