#include "figures/Coverage.h"
#include "figures/Exports.h"
#include "figures/Periods.h"
#include "figures/SalesSelection.h"
#include "testing/EarningsFixture.h"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;

TEST(Periods, TheReportOfAYearThatStillRanDoesNotReplaceItsDays) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.proceeds = "5"}});
    fixture.report(ReportFrequency::yearly, "2026", {{.proceeds = "2"}});
    auto& reports = fixture.context().salesReports();
    auto year = *reports.find(salesReportKey("YEARLY", "2026"));
    for (const auto& [answered, sum] :
         {std::pair(testing::noon(2026, 12, 31), "USD 5"), {testing::noon(2027, 1, 8), "USD 2"}}) {
        year.record.fetchedAt = answered;
        reports.update(year.id, year.record);
        EXPECT_EQ(testing::money(allTimeRows(fixture.reload().snapshot(), {}).aggregate()), sum);
    }
}

TEST(Periods, AMonthOfWhichEveryDayIsKnownIsWhole) {
    EarningsFixture fixture;
    for (const KeyedDay& day : days("2026-02-01", "2026-02-28")) {
        fixture.report(ReportFrequency::daily, day.key, {}, ReportStatus::empty);
    }
    const auto months = monthStats(fixture.reload().snapshot(), fixture.store().calendar(), {});
    const auto source = [&months](const char* month) {
        return sourceText(*std::ranges::find(months, month, &PeriodStat::label));
    };
    EXPECT_EQ(source("2026-02"), "From daily reports");
    EXPECT_EQ(source("2026-03"), "From daily reports · 0 of 31 days");
    EXPECT_FALSE(coverage(*fixture.store().snapshot(), fixture.store().calendar()).isWhole());
}

}  // namespace
}  // namespace vantrell
