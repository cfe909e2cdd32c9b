#include "sample/Publication.h"
#include "sample/SampleAccount.h"
#include "sample/SampleTotals.h"
#include "testing/Cases.h"

#include <gtest/gtest.h>

namespace vantrell::sample {
namespace {

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
