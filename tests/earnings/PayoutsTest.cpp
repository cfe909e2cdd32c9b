#include "testing/EarningsFixture.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Payment;

std::string described(const FinancePeriodStat& period) {
    const auto key = [](const std::optional<Instant>& date) {
        return date ? dayKey(std::chrono::floor<std::chrono::days>(*date)) : "none";
    };
    return key(period.start) + " to " + key(period.end) + ", " + std::to_string(period.units) + " units, " +
           std::to_string(period.returns) + " returns, " + testing::money(period.byCurrency);
}

struct Case {
    const char* name;
    std::vector<Payment> lines;
    const char* period;
};

std::vector<Case> periods() {
    return {
        {"a sale and a return",
         {{.quantity = 10, .share = "7.5"}, {.quantity = -3, .share = "-2.25", .saleOrReturn = "R"}},
         "none to none, 10 units, 3 returns, USD 5.25"},
        {"a return with a positive count",
         {{.quantity = 3, .saleOrReturn = "R"}},
         "none to none, 0 units, 3 returns, USD 1"},
        {"less than none, but no return", {{.quantity = -3}}, "none to none, -3 units, 0 returns, USD 1"},
        {"in lower case no return", {{.saleOrReturn = "r"}}, "none to none, 1 units, 0 returns, USD 1"},
        {"the earliest start and the latest end",
         {{.start = "2026-09-28", .end = "2026-10-25"},
          {.start = "2026-09-27", .end = "2026-10-31"},
          {.start = "2026-09-29", .end = "2026-10-01"},
          {}},
         "2026-09-27 to 2026-10-31, 4 units, 0 returns, USD 4"},
        {"a currency worth zero stays",
         {{.share = "0", .currency = "JPY"}, {.share = "0.000001", .currency = "KWD"}},
         "none to none, 2 units, 0 returns, JPY 0, KWD 0.000001"},
    };
}

TEST(FinancePeriods, AddUpTheLinesOfAPeriod) {
    for (const Case& row : periods()) {
        EarningsFixture fixture;
        fixture.payments("2026-12", row.lines);
        const auto stats = fixture.reload().financePeriods({});
        ASSERT_EQ(stats.size(), 1U) << row.name;
        EXPECT_EQ(stats[0].label, "2026-12");
        EXPECT_EQ(described(stats[0]), row.period) << row.name;
    }
}

TEST(FinancePeriods, ComeNewestFirstAndOnlyOfTheAppsAskedFor) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.appleID = 1},
                                 {.appleID = 2, .sku = "other"},
                                 {.appleID = 11, .productType = "IA1", .parentSKU = "app"}});
    fixture.payments("2026-01", {{.appleID = 1, .share = "1"}, {.appleID = 2, .share = "10"}});
    fixture.payments("2025-12", {{.appleID = 11, .share = "100"}, {.appleID = 9, .share = "1000"}});
    fixture.payments("soon", {{.appleID = 2, .share = "5"}});
    EarningsStore& store = fixture.reload();
    const auto shown = [&store](const AppFilter& apps) {
        std::string text;
        for (const auto& period : store.financePeriods(apps)) {
            text += period.label + " " + testing::money(period.byCurrency) + "; ";
        }
        return text;
    };
    EXPECT_EQ(shown({}), "soon USD 5; 2026-01 USD 11; 2025-12 USD 1100; ");
    EXPECT_EQ(shown(std::set<std::int64_t>{1}), "2026-01 USD 1; 2025-12 USD 100; ");
    EXPECT_EQ(shown(std::set<std::int64_t>{}), "");
}

std::string payouts(const EarningsStore& store) {
    std::string text;
    for (const AppPayout& payout : store.appPayouts()) {
        text += payout.app.title + ": " + testing::money(payout.currentFiscalYear) + " of " +
                testing::money(payout.allTime) + "; ";
    }
    return text;
}

TEST(AppPayouts, CountTheYearOfTheNewestFinishedReportUnderTheOwningApp) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.appleID = 1, .title = "Zebra"},
                                 {.appleID = 2, .title = "Apple", .sku = "other"},
                                 {.appleID = 3, .title = "Unpaid", .sku = "unpaid"},
                                 {.appleID = 11, .productType = "IA1", .parentSKU = "app"}});
    fixture.payments("2025-12", {{.appleID = 1, .share = "1"}, {.appleID = 2, .share = "3"}});
    fixture.payments("2026-01", {{.appleID = 11, .share = "10"}, {.appleID = 2, .share = "-3"}});
    fixture.payments("2026-02", {{.appleID = 9, .share = "100"}});
    fixture.payments("2027-01", {{.appleID = 1, .share = "1000"}}, ReportStatus::error);
    fixture.payments("soon", {{.appleID = 1, .share = "10000"}}, ReportStatus::error);
    EXPECT_EQ(payouts(fixture.reload()), "Apple: USD -3 of USD 0; Zebra: USD 10 of USD 11011; ");
}

TEST(AppPayouts, GoByTodaysFiscalYearWithoutAFinishedReport) {
    EarningsFixture fixture;
    fixture.daily("2026-11-20", {{.title = "App"}});
    fixture.payments("2026-12", {{.share = "1"}}, ReportStatus::error);
    fixture.payments("2027-02", {{.share = "10"}}, ReportStatus::error);
    EXPECT_EQ(payouts(fixture.reload()), "App: USD 10 of USD 11; ");
    // A finished report of a label that is no period, with which other such labels count.
    fixture.payments("soon", {{.share = "100"}});
    EXPECT_EQ(payouts(fixture.reload()), "App: USD 100 of USD 111; ");
}

}  // namespace
}  // namespace vantrell
