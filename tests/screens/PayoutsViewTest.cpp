#include "ScreenFixture.h"
#include "screens/PayoutsView.h"
#include "screens/components/CurrencyBreakdownList.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

ParsedFinanceRow payment(std::int64_t quantity, const char* share, const char* currency,
                         const char* saleOrReturn, Instant start, Instant end) {
    ParsedFinanceRow row;
    row.appleID = 1;
    row.quantity = quantity;
    row.extendedPartnerShare = *Decimal::parse(share);
    row.partnerShareCurrency = currency;
    row.saleOrReturn = saleOrReturn;
    row.startDate = start;
    row.endDate = end;
    return row;
}

class PayoutsViewTest : public ::testing::Test {
  protected:
    PayoutsViewTest() {
        fixture.run(fixture.engine().refreshRates(true));
        store("2026-11",
              {payment(1200, "10", "USD", "S", testing::noon(2026, 8, 2), testing::noon(2026, 8, 29)),
               payment(900, "90", "EUR", "S", distantPast, distantPast),
               payment(-3, "-1", "XTS", "R", distantPast, distantPast)});
        store("2026-12", {payment(5, "1", "USD", "S", distantPast, distantPast)});
        fixture.reload();
        payouts.setInSight(true);
    }

    void store(const std::string& period, const std::vector<ParsedFinanceRow>& rows) {
        fixture.storeFinance(period, ReportStatus::ok);
        fixture.context().replaceFinanceRows("ZZ", period, rows);
    }
    [[nodiscard]] PayoutRow row(std::size_t place) { return payouts.rows()->at<PayoutRow>(place); }

    testing::ScreenFixture fixture;
    PayoutsView payouts{fixture.parts()};
};

TEST_F(PayoutsViewTest, ShowsWhatIsKnownOfEachPeriodNewestFirst) {
    ASSERT_EQ(payouts.rows()->count(), 2);
    EXPECT_EQ(row(0).title, QStringLiteral("Fiscal 2026-12"));
    EXPECT_EQ(row(0).dates, QString());
    EXPECT_EQ(row(0).units, QStringLiteral("5 units"));
    EXPECT_EQ(row(1).dates, QStringLiteral("Aug 2, 2026 – Aug 29, 2026"));
    EXPECT_EQ(row(1).units, QStringLiteral("2,100 units · 3 returns"));
    EXPECT_EQ(row(1).money.text, QStringLiteral("$110.00"));
    EXPECT_FALSE(row(1).money.warning.isEmpty());
    EXPECT_TRUE(row(1).currencies.isEmpty());
}

TEST_F(PayoutsViewTest, OpensARowToItsCurrenciesAndKeepsItOpen) {
    payouts.toggle(1);
    fixture.reload();
    EXPECT_FALSE(row(0).isExpanded);
    ASSERT_TRUE(row(1).isExpanded);
    std::string shown;
    for (const QVariant& currency : row(1).currencies) {
        const auto entry = currency.value<BreakdownRow>();
        shown += (entry.code + u' ' + entry.amount + u'|' + entry.converted + u'\n').toStdString();
    }
    EXPECT_EQ(shown, "EUR €90.00|$100.00\nUSD $10.00|\nXTS -XTS\u00A01.00|\n");
    payouts.toggle(1);
    EXPECT_FALSE(row(1).isExpanded);
    payouts.toggle(2);
}

TEST_F(PayoutsViewTest, FetchesAPeriodAgainUnlessARunIsUnderWay) {
    fixture.takeRequests();
    payouts.refetch(1);
    EXPECT_EQ(fixture.takeRequests(), std::vector<std::string>{"FINANCE 2026-11"});
    ASSERT_TRUE(fixture.engine().beginRun());
    EXPECT_FALSE(payouts.canRefetch());
    payouts.refetch(1);
    EXPECT_TRUE(fixture.requests().empty());
}

TEST_F(PayoutsViewTest, SaysWhyThereIsNone) {
    fixture.earnings.setAppFilter(std::set<std::int64_t>{});
    EXPECT_TRUE(payouts.isEmpty());
    EXPECT_EQ(payouts.emptyState().description,
              QStringLiteral("The selected apps haven't appeared in a finance report yet."));
    fixture.earnings.setAppFilter({});
    EXPECT_FALSE(payouts.isEmpty());
}

}  // namespace
}  // namespace vantrell
