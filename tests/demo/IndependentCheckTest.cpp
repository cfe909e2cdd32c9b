#include "figures/Apps.h"
#include "figures/CSVLine.h"
#include "figures/Exports.h"
#include "figures/Payouts.h"
#include "reports/FinanceParser.h"
#include "reports/SalesParser.h"
#include "sample/FinanceBody.h"
#include "sample/ReportPeriods.h"
#include "sample/SalesBody.h"
#include "sample/SampleTotals.h"
#include "testing/CsvRecords.h"
#include "testing/EarningsFixture.h"

#include <array>
#include <map>

#include <gtest/gtest.h>

// The sample account's reports through the parsers and the store to the exports, held against what the
// account itself says was sold and paid. The two sides share no arithmetic.

namespace vantrell {
namespace {

using sample::MoneyByCurrency;
using sample::PayoutTotals;
using sample::ReportKind;
using sample::SalesTotals;

constexpr std::array periods{"2026-11", "2026-12", "2027-01"};

sample::DateRange daysOf(ReportKind kind, const std::string& label) {
    return *sample::reportDays(kind, label);
}

AmountsByCurrency amounts(const MoneyByCurrency& sums) {
    AmountsByCurrency amounts;
    for (const auto& [code, money] : sums) {
        amounts[code] = Decimal::scaled(money.minor, -money.digits);
    }
    return amounts;
}

std::string exact(const SalesTotals& totals) {
    std::string text;
    for (const std::int64_t units : {totals.appUnits, totals.inAppUnits, totals.updateUnits,
                                     totals.redownloadUnits, totals.refundedUnits}) {
        text += std::to_string(units) + "|";
    }
    return text + breakdownText(amounts(totals.proceeds));
}

std::string exact(const PayoutTotals& totals) {
    return std::to_string(totals.units) + "|" + std::to_string(totals.returns) + "|" +
           breakdownText(amounts(totals.paid));
}

void add(SalesTotals& sum, const SalesTotals& other) {
    sum.appUnits += other.appUnits;
    sum.inAppUnits += other.inAppUnits;
    sum.updateUnits += other.updateUnits;
    sum.redownloadUnits += other.redownloadUnits;
    sum.refundedUnits += other.refundedUnits;
    for (const auto& [code, money] : other.proceeds) {
        sum.proceeds.try_emplace(code, sample::Money{0, money.digits}).first->second.minor += money.minor;
    }
}

using Fields = std::vector<std::string>;

/// The columns from `first` on as "1|2|…|EUR 3", without the two that depend on rates.
std::string exact(const Fields& record, std::size_t first) {
    std::string text;
    for (std::size_t column = first; column + 3 < record.size(); ++column) {
        text += record[column] + "|";
    }
    return text + record.back();
}

/// A small account whose reports of this autumn, of two years and of three fiscal periods are stored.
class IndependentCheck : public ::testing::Test {
  protected:
    IndependentCheck() {
        for (const KeyedDay& day : days("2026-09-20", "2026-11-21")) {
            sales(ReportFrequency::daily, ReportKind::daily, day.key);
        }
        for (const char* month : {"2026-08", "2026-10"}) {
            sales(ReportFrequency::monthly, ReportKind::monthly, month);
        }
        for (const char* year : {"2024", "2025"}) {
            sales(ReportFrequency::yearly, ReportKind::yearly, year);
        }
        for (const char* period : periods) {
            const auto range = daysOf(ReportKind::finance, period);
            fixture_.parsedPayments(period, parseFinance(sample::financeBody(account_, range)).rows);
        }
        fixture_.rates({{"USD", 1}, {"EUR", 0.9}, {"JPY", 150}});
        fixture_.reload();
    }

    [[nodiscard]] EarningsStore& store() { return fixture_.store(); }
    [[nodiscard]] std::vector<AppTableEntry> appTable() {
        return vantrell::appTable(store().snapshot(), store().converter(), store().calendar());
    }
    [[nodiscard]] std::vector<Fields> records(ExportKind kind) {
        return testing::csvRecords(exportText(store(), kind));
    }
    [[nodiscard]] SalesTotals totals(ReportKind kind, const std::string& label) const {
        return sample::salesTotals(account_, daysOf(kind, label));
    }
    [[nodiscard]] SalesTotals thisYear(std::optional<std::int64_t> app = {}) const {
        return sample::salesTotals(account_, {sample::dayOf(2026, 9, 20), sample::dayOf(2026, 11, 21)}, app);
    }
    [[nodiscard]] SalesTotals allTime(std::optional<std::int64_t> app = {}) const {
        SalesTotals sum = thisYear(app);
        add(sum,
            sample::salesTotals(account_, {sample::dayOf(2024, 1, 1), sample::dayOf(2025, 12, 31)}, app));
        return sum;
    }

    sample::SampleAccount account_{{.ordersPerDay = 8}};

  private:
    void sales(ReportFrequency frequency, ReportKind kind, const std::string& label) {
        const auto body = sample::salesBody(account_, daysOf(kind, label));
        fixture_.parsedReport(frequency, label, parseSales(body).rows);
    }

    testing::EarningsFixture fixture_;
};

TEST_F(IndependentCheck, DaysAreWhatWasSoldOnThem) {
    std::size_t stored = 0;
    for (const Fields& record : records(ExportKind::days)) {
        const bool isStored = record[1] == "ok";
        stored += isStored ? 1U : 0U;
        EXPECT_EQ(exact(record, 2), exact(isStored ? totals(ReportKind::daily, record[0]) : SalesTotals()))
            << record[0];
    }
    EXPECT_EQ(stored, 63U);
}

TEST_F(IndependentCheck, MonthsAndYearsAreTheirDaysAddedUp) {
    std::map<std::string, SalesTotals> expected{
        {"2026-11", sample::salesTotals(account_, {sample::dayOf(2026, 11, 1), sample::dayOf(2026, 11, 21)})},
        {"2026-10", totals(ReportKind::monthly, "2026-10")},
        {"2026-09", sample::salesTotals(account_, {sample::dayOf(2026, 9, 20), sample::dayOf(2026, 9, 30)})},
        {"2026-08", totals(ReportKind::monthly, "2026-08")},
        {"2026", thisYear()},
        {"2025", totals(ReportKind::yearly, "2025")},
        {"2024", totals(ReportKind::yearly, "2024")}};
    for (const auto& [kind, count] : {std::pair(ExportKind::months, 13U), {ExportKind::years, 3U}}) {
        const auto found = records(kind);
        EXPECT_EQ(found.size(), count);
        for (const Fields& record : found) {
            EXPECT_EQ(exact(record, 2), exact(expected[record[0]])) << record[0];
        }
    }
}

TEST_F(IndependentCheck, PayoutsAreWhatWasPaid) {
    const auto payouts = records(ExportKind::payouts);
    ASSERT_EQ(payouts.size(), periods.size());
    for (const Fields& record : payouts) {
        const auto range = daysOf(ReportKind::finance, record[0]);
        EXPECT_EQ(exact(record, 3), exact(sample::payoutTotals(account_, range))) << record[0];
        EXPECT_EQ(record[1] + " " + record[2], dayKey(range.first) + " " + dayKey(range.last));
    }
}

TEST_F(IndependentCheck, AppsAreWhatTheyAndTheirProductsSold) {
    EXPECT_GT(appTable().size(), 5U);
    for (const AppTableEntry& entry : appTable()) {
        EXPECT_EQ(exact(statsFields(store().converter(), entry.allTime), 0), exact(allTime(entry.app.id)))
            << entry.app.title;
        EXPECT_EQ(exact(statsFields(store().converter(), entry.ytd), 0), exact(thisYear(entry.app.id)))
            << entry.app.title;
    }
    const sample::DateRange paid{daysOf(ReportKind::finance, periods.front()).first,
                                 daysOf(ReportKind::finance, periods.back()).last};
    for (const AppPayout& payout : appPayouts(*store().snapshot(), store().calendar())) {
        EXPECT_EQ(payout.allTime, amounts(sample::payoutTotals(account_, paid, payout.app.id).paid))
            << payout.app.title;
    }
}

}  // namespace
}  // namespace vantrell
