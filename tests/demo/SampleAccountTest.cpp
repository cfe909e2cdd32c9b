#include "sample/Publication.h"
#include "sample/SalesBody.h"
#include "sample/SampleAccount.h"
#include "sample/SampleTotals.h"
#include "testing/Cases.h"

#include <gtest/gtest.h>

namespace vantrell::sample {
namespace {

std::string dayBody(const SampleAccount& account, Day day) {
    return salesBody(account, {day, day});
}

TEST(SampleAccount, GivesADayTheSameLinesWheneverItIsAskedFor) {
    const SampleAccount account;
    const auto body = dayBody(account, dayOf(2026, 8, 14));
    EXPECT_NE(dayBody(account, dayOf(2026, 8, 15)), body);
    EXPECT_EQ(dayBody(account, dayOf(2026, 8, 14)), body);
    EXPECT_EQ(dayBody(SampleAccount{}, dayOf(2026, 8, 14)), body);
    EXPECT_NE(dayBody(SampleAccount{{.seed = 2}}, dayOf(2026, 8, 14)), body);
}

// Whoever keeps a trial's data keeps days that a later build must still add up with.
TEST(SampleAccount, StaysTheSameFromBuildToBuild) {
    const auto totals = salesTotals(SampleAccount{}, {dayOf(2026, 8, 14), dayOf(2026, 8, 14)});
    EXPECT_EQ(totals.appUnits, 58);
    EXPECT_EQ(totals.inAppUnits, 130);
    EXPECT_EQ(totals.proceeds.at("JPY"), (Money{26868, 0}));
}

TEST(Publication, IsWhenTheRealOneIsAndEndsInTime) {
    using Text = const std::string&;
    testing::expectCases<3>(VANTRELL_TEST_DATA "/publication.tsv", [](Text report, Text date, Text time) {
        const ReportKind kind = salesReportKind(report).value_or(ReportKind::finance);
        const auto answer =
            Publication().availability(kind, reportDays(kind, date).value(), testing::instantOf(time));
        return std::string(answer == Availability::published ? "published"
                           : answer == Availability::notYet  ? "not yet"
                                                             : "no longer");
    });
}

}  // namespace
}  // namespace vantrell::sample
