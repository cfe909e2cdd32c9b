#include "calendar/FiscalPeriod.h"
#include "calendar/ReportSchedule.h"
#include "testing/Cases.h"

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
