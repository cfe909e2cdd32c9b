#include "calendar/FiscalPeriod.h"
#include "calendar/ReportSchedule.h"

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
    const struct {
        std::string name;
        std::string text;
        std::optional<YearMonth> expected;
    } cases[] = {
        {"the earliest year", "2001-01", YearMonth{2001, 1}},
        {"stray dashes", "-2026--5-", YearMonth{2026, 5}},
        {"too early", "2000-05", std::nullopt},
        {"no such month", "2026-13", std::nullopt},
        {"letters", "2026-May", std::nullopt},
        {"a year beyond any number", "99999999999999999999-01", std::nullopt},
        {"nothing", "", std::nullopt},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(parseFiscalPeriod(row.text), row.expected) << row.name;
    }
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
