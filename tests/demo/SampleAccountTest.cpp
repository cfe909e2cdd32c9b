#include "TableReader.h"
#include "sample/FinanceBody.h"
#include "sample/SalesBody.h"
#include "sample/SampleAccount.h"
#include "sample/SampleTotals.h"

#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace vantrell::sample {
namespace {

using testing::TableReader;

std::string dayBody(const SampleAccount& account, Day day) {
    return salesBody(account, {day, day});
}

/// Units by everything else that a line says but for its dates.
using UnitsByLine = std::map<std::string, std::int64_t>;

void addLines(UnitsByLine& sums, const TableReader& report) {
    for (const auto& line : report.lines()) {
        std::string rest;
        for (const auto* const heading :
             {"SKU", "Title", "Product Type Identifier", "Developer Proceeds", "Customer Currency",
              "Country Code", "Currency of Proceeds", "Customer Price", "Parent Identifier", "Subscription",
              "Device", "Proceeds Reason", "Order Type"}) {
            rest += report.raw(line, heading) + "\t";
        }
        sums[rest] += report.number(line, "Units");
    }
}

UnitsByLine sumOfDays(const SampleAccount& account, const DateRange& range) {
    UnitsByLine sums;
    for (auto day = range.first; day <= range.last; day += std::chrono::days{1}) {
        addLines(sums, TableReader{dayBody(account, day)});
    }
    return sums;
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

TEST(SampleAccount, AddsUpAMonthAndAYearFromTheirDays) {
    const struct {
        const char* name;
        DateRange range;
    } cases[] = {
        {"month in which an app is renamed", wholeMonth(std::chrono::year{2026} / 4)},
        {"month in which a price changes", wholeMonth(std::chrono::year{2026} / 2)},
        {"leap year in which the account was opened", wholeYear(2020)},
    };
    const SampleAccount account{{.ordersPerDay = 40}};
    for (const auto& c : cases) {
        UnitsByLine report;
        addLines(report, TableReader{salesBody(account, c.range)});
        EXPECT_FALSE(report.empty()) << c.name;
        EXPECT_TRUE(report == sumOfDays(account, c.range)) << c.name;
    }
}

TEST(SampleAccount, PaysInAFiscalMonthWhatItsDaysEarned) {
    const SampleAccount account;
    const auto range = wholeMonth(std::chrono::year{2026} / 8);
    std::map<std::string, std::int64_t> earned;
    for (auto day = range.first; day <= range.last; day += std::chrono::days{1}) {
        const TableReader report{dayBody(account, day)};
        for (const auto& line : report.lines()) {
            if (const auto proceeds = report.hundredths(line, "Developer Proceeds"); proceeds != 0) {
                const auto units = report.number(line, "Units");
                earned[report.cell(line, "SKU") + report.cell(line, "Country Code") +
                       report.cell(line, "Currency of Proceeds") + (units < 0 ? "R" : "S")] +=
                    units * proceeds;
            }
        }
    }

    const TableReader finance{financeBody(account, range)};
    std::map<std::string, std::int64_t> paid;
    for (const auto& line : finance.lines()) {
        const auto extended = finance.hundredths(line, "Extended Partner Share");
        const auto currency = finance.cell(line, "Partner Share Currency");
        EXPECT_EQ(extended, finance.hundredths(line, "Partner Share") * finance.number(line, "Quantity"));
        paid[finance.cell(line, "Vendor Identifier") + finance.cell(line, "Country Of Sale") + currency +
             finance.cell(line, "Sales or Return")] += extended;
    }
    EXPECT_EQ(paid, earned);
}

TEST(SampleAccount, LooksLikeTheAccountOfARealSeller) {
    const DateRange lastYear{dayOf(2025, 11, 22), dayOf(2026, 11, 21)};
    const SampleAccount account;
    const TableReader report{salesBody(account, lastYear)};
    std::map<std::string, std::set<std::string>> seen;
    for (const auto& line : report.lines()) {
        for (const auto* heading : {"Promo Code", "Order Type", "Proceeds Reason", "Customer Currency",
                                    "Developer Proceeds", "Customer Price", "Currency of Proceeds",
                                    "Parent Identifier", "Country Code", "Product Type Identifier"}) {
            seen[heading].insert(report.raw(line, heading));
        }
    }
    const std::set<std::string> types{"1",  "1F", "1T", "1-B", "F1",    "3",   "3F",  "3T",  "7",
                                      "7F", "7T", "F7", "IA1", "IA1-M", "IA3", "IA9", "IAY", "IAY-M"};
    EXPECT_EQ(seen["Product Type Identifier"], types);
    EXPECT_EQ(seen["Country Code"].size(), 60U);
    const struct {
        const char* name;
        const char* heading;
        const char* text;
    } cases[] = {
        {"promo code", "Promo Code", "CR-RW"},
        {"better rate after a year", "Proceeds Reason", "Rate After One Year"},
        {"blank currency of a free download", "Currency of Proceeds", " "},
        {"padded currency", "Customer Currency", "EUR "},
        {"amount without its leading zero", "Developer Proceeds", ".70"},
        {"nothing earned", "Developer Proceeds", "0.00"},
        {"yen without a point", "Customer Price", "160"},
        {"negative price of a refund", "Customer Price", "-4.99"},
        {"product of an unknown app", "Parent Identifier", "com.brambleworks.skylark"},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(seen[c.heading].contains(c.text)) << c.name;
    }
}

}  // namespace
}  // namespace vantrell::sample
