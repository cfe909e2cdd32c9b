#include "TableReader.h"
#include "sample/Currencies.h"
#include "sample/FinanceBody.h"
#include "sample/SalesBody.h"
#include "sample/SampleAccount.h"
#include "sample/SampleTotals.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace vantrell::sample {
namespace {

using testing::inHundredths;
using testing::TableReader;

const DateRange lastYear{dayOf(2025, 11, 22), dayOf(2026, 11, 21)};

std::string dayBody(const SampleAccount& account, Day day) {
    return salesBody(account, {day, day});
}

/// Units by everything else that a line says but for its dates.
using UnitsByLine = std::map<std::string, std::int64_t>;

void addLines(UnitsByLine& sums, const TableReader& report) {
    for (const auto& line : report.lines()) {
        std::string rest;
        for (const auto* const heading :
             {"SKU", "Title", "Version", "Product Type Identifier", "Developer Proceeds", "Customer Currency",
              "Country Code", "Currency of Proceeds", "Apple Identifier", "Customer Price", "Promo Code",
              "Parent Identifier", "Subscription", "Period", "Category", "Device", "Supported Platforms",
              "Proceeds Reason", "Order Type"}) {
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

std::map<std::string, std::int64_t> hundredthsOf(const MoneyByCurrency& sums) {
    std::map<std::string, std::int64_t> hundredths;
    for (const auto& [currency, amount] : sums) {
        hundredths[currency] = amount.digits == 0 ? amount.minor * 100 : amount.minor;
    }
    return hundredths;
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
        bool withNewName = false;
    } cases[] = {
        {"leap month", wholeMonth(std::chrono::year{2024} / 2)},
        {"month in which an app is renamed", wholeMonth(std::chrono::year{2026} / 4), true},
        {"month in which a price changes", wholeMonth(std::chrono::year{2026} / 2)},
        {"year in which the account was opened", wholeYear(2020)},
        {"full year", wholeYear(2025)},
    };
    const SampleAccount account{{.ordersPerDay = 40}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto body = salesBody(account, c.range);
        UnitsByLine report;
        addLines(report, TableReader{body});
        EXPECT_FALSE(report.empty());
        EXPECT_TRUE(report == sumOfDays(account, c.range));
        EXPECT_EQ(
            body.find("Budget Bee") != std::string::npos && body.find("Honeycomb —") != std::string::npos,
            c.withNewName);
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
        EXPECT_EQ(extended, finance.hundredths(line, "Partner Share") * finance.number(line, "Quantity"));
        EXPECT_EQ(finance.cell(line, "Start Date"), "08/01/2026");
        EXPECT_EQ(finance.cell(line, "End Date"), "08/31/2026");
        paid[finance.cell(line, "Vendor Identifier") + finance.cell(line, "Country Of Sale") +
             finance.cell(line, "Partner Share Currency") + finance.cell(line, "Sales or Return")] +=
            extended;
    }
    EXPECT_EQ(paid, earned);
}

TEST(SampleAccount, EndsAFinanceReportWithTheTotalsOfEachCurrency) {
    const SampleAccount account;
    const TableReader finance{financeBody(account, wholeMonth(std::chrono::year{2026} / 8))};
    struct Section {
        std::int64_t rows = 0;
        std::int64_t amount = 0;
        std::int64_t units = 0;
    };
    std::map<std::string, Section> sections;
    for (const auto& line : finance.lines()) {
        auto& section = sections[finance.cell(line, "Partner Share Currency")];
        section.rows += 1;
        section.amount += finance.hundredths(line, "Extended Partner Share");
        section.units += finance.number(line, "Quantity");
    }
    ASSERT_EQ(finance.oddLines().size(), 3 * sections.size());
    auto total = finance.oddLines().begin();
    for (const auto& [currency, section] : sections) {
        EXPECT_EQ(*total++, (TableReader::Line{"Total_Rows", std::to_string(section.rows)})) << currency;
        EXPECT_EQ(total->at(0), "Total_Amount");
        EXPECT_EQ(inHundredths((total++)->at(1)), section.amount) << currency;
        EXPECT_EQ(*total++, (TableReader::Line{"Total_Units", std::to_string(section.units)})) << currency;
    }
}

TEST(SampleAccount, KnowsTheTotalsOfItsSalesReports) {
    const SampleAccount account;
    const auto range = wholeMonth(std::chrono::year{2025} / 12);
    const TableReader report{salesBody(account, range)};
    SalesTotals counted;
    std::map<std::string, std::int64_t> proceeds;
    for (const auto& line : report.lines()) {
        const auto type = report.cell(line, "Product Type Identifier");
        const auto units = report.number(line, "Units");
        auto& counter = type.starts_with("IA")  ? counted.inAppUnits
                        : type.starts_with("7") ? counted.updateUnits
                        : type.starts_with("3") ? counted.redownloadUnits
                                                : counted.appUnits;
        (units < 0 ? counted.refundedUnits : counter) += std::abs(units);
        if (const auto each = report.hundredths(line, "Developer Proceeds"); each != 0) {
            proceeds[report.cell(line, "Currency of Proceeds")] += units * each;
        }
    }
    auto totals = salesTotals(account, range);
    EXPECT_EQ(hundredthsOf(totals.proceeds), proceeds);
    totals.proceeds.clear();
    EXPECT_EQ(totals, counted);
}

TEST(SampleAccount, KnowsTheTotalsOfItsFinanceReports) {
    const SampleAccount account;
    const auto range = wholeMonth(std::chrono::year{2025} / 12);
    const TableReader finance{financeBody(account, range)};
    PayoutTotals counted;
    std::map<std::string, std::int64_t> paid;
    for (const auto& line : finance.lines()) {
        const auto quantity = finance.number(line, "Quantity");
        (finance.cell(line, "Sales or Return") == "R" ? counted.returns : counted.units) +=
            std::abs(quantity);
        paid[finance.cell(line, "Partner Share Currency")] +=
            finance.hundredths(line, "Extended Partner Share");
    }
    const auto totals = payoutTotals(account, range);
    EXPECT_EQ(totals.units, counted.units);
    EXPECT_EQ(totals.returns, counted.returns);
    EXPECT_GT(totals.returns, 0);
    EXPECT_EQ(hundredthsOf(totals.paid), paid);
}

TEST(SampleAccount, DividesItsTotalsAmongItsApps) {
    const SampleAccount account{{.ordersPerDay = 60}};
    const auto range = wholeMonth(std::chrono::year{2026} / 7);
    std::int64_t ofApps = 0;
    for (const auto& app : sampleApps()) {
        ofApps += salesTotals(account, range, app.appleID).inAppUnits;
    }
    std::int64_t ofNobody = 0;
    const TableReader report{salesBody(account, range)};
    for (const auto& line : report.lines()) {
        const bool orphan = report.cell(line, "Parent Identifier") == "com.brambleworks.skylark";
        ofNobody += orphan ? std::max<std::int64_t>(report.number(line, "Units"), 0) : 0;
    }
    EXPECT_GT(ofNobody, 0);
    EXPECT_EQ(ofApps + ofNobody, salesTotals(account, range).inAppUnits);
}

TEST(SampleAccount, HasTheOdditiesOfARealOne) {
    const SampleAccount account;
    const TableReader report{salesBody(account, lastYear)};
    const auto is = [&report](const char* heading, const char* text) {
        return [&report, heading, text](const TableReader::Line& line) {
            return report.raw(line, heading) == text;
        };
    };
    const auto titleHas = [&report](const char* part) {
        return [&report, part](const TableReader::Line& line) {
            return report.raw(line, "Title").find(part) != std::string::npos;
        };
    };
    const struct {
        const char* name;
        std::function<bool(const TableReader::Line&)> found;
    } cases[] = {
        {"promo code", is("Promo Code", "CR-RW")},
        {"subscriber won back", is("Order Type", "Win-back")},
        {"better rate after a year", is("Proceeds Reason", "Rate After One Year")},
        {"blank currency of a free download", is("Currency of Proceeds", " ")},
        {"padded currency", is("Customer Currency", "EUR ")},
        {"amount without its leading zero", is("Developer Proceeds", ".70")},
        {"nothing earned", is("Developer Proceeds", "0.00")},
        {"yen without a point", is("Customer Price", "160")},
        {"negative price of a refund", is("Customer Price", "-4.99")},
        {"product of an unknown app", is("Parent Identifier", "com.brambleworks.skylark")},
        {"right-to-left title", titleHas("دفتر المصاريف")},
        {"Japanese title", titleHas("数独の庭")},
        {"emoji title", titleHas("🦊🌙")},
        {"title before it was changed", titleHas("Budget Bee")},
        {"title after it was changed", titleHas("Honeycomb —")},
        {"title of more than 500 bytes",
         [&report](const TableReader::Line& line) { return report.raw(line, "Title").size() > 500; }},
        {"refund at the price paid",
         [&report](const TableReader::Line& line) {
             return report.number(line, "Units") < 0 && report.hundredths(line, "Customer Price") > 0;
         }},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(std::ranges::any_of(report.lines(), c.found)) << c.name;
    }
}

TEST(SampleAccount, HasLinesOfEveryTypeThatItsItemsCanHave) {
    const SampleAccount account;
    const TableReader report{salesBody(account, lastYear)};
    std::set<std::string> types;
    for (const auto& line : report.lines()) {
        types.insert(report.cell(line, "Product Type Identifier"));
    }
    const std::set<std::string> expected{"1",  "1F", "1T", "1-B", "F1",    "3",   "3F",  "3T",  "7",
                                         "7F", "7T", "F7", "IA1", "IA1-M", "IA3", "IA9", "IAY", "IAY-M"};
    EXPECT_EQ(types, expected);
}

TEST(SampleAccount, SellsEverywhereInTwentyFiveCurrencies) {
    const SampleAccount account;
    const TableReader report{salesBody(account, lastYear)};
    std::set<std::string> apps;
    std::set<std::string> products;
    std::set<std::string> countries;
    std::set<std::string> currencies;
    for (const auto& line : report.lines()) {
        (report.cell(line, "Parent Identifier").empty() ? apps : products).insert(report.cell(line, "SKU"));
        countries.insert(report.cell(line, "Country Code"));
        currencies.insert(report.cell(line, "Currency of Proceeds"));
    }
    currencies.erase("");
    EXPECT_EQ(report.columnCount(), 28U);
    EXPECT_EQ(apps.size(), 13U);
    EXPECT_EQ(products.size(), 40U);
    EXPECT_EQ(countries.size(), 60U);
    EXPECT_EQ(currencies.size(), 25U);
    EXPECT_TRUE(report.oddLines().empty());
}

TEST(SampleAccount, GrowsFromYearToYearAndHasItsWeeklyRhythm) {
    const SampleAccount account;
    std::size_t linesBefore = 0;
    for (int year = 2020; year <= 2026; ++year) {
        const auto lines = account.sales(wholeMonth(std::chrono::year{year} / 10)).size();
        EXPECT_GT(lines, linesBefore) << year;
        linesBefore = lines;
    }
    std::map<unsigned, std::size_t> byWeekday;
    for (auto day = lastYear.first; day <= lastYear.last; day += std::chrono::days{1}) {
        const auto lines = account.sales({day, day}).size();
        EXPECT_TRUE(lines == 0 || (lines >= 60 && lines <= 300)) << lines;
        byWeekday[std::chrono::weekday{day}.iso_encoding()] += lines;
    }
    EXPECT_GT(byWeekday[6], byWeekday[2]);
    EXPECT_GT(byWeekday[7], byWeekday[2]);
}

TEST(SampleAccount, SellsNothingBeforeItOpensAndOnOneDayAQuarter) {
    const SampleAccount account{{.ordersPerDay = 20}};
    EXPECT_TRUE(account.sales({dayOf(2008, 1, 1), dayOf(2020, 5, 11)}).empty());
    EXPECT_FALSE(account.sales({dayOf(2020, 5, 12), dayOf(2020, 5, 13)}).empty());
    int quietDays = 0;
    for (auto day = dayOf(2026, 7, 1); day < dayOf(2026, 10, 1); day += std::chrono::days{1}) {
        quietDays += account.sales({day, day}).empty() ? 1 : 0;
    }
    EXPECT_EQ(quietDays, 1);
}

TEST(SampleAccount, SellsNothingMoreOfAWithdrawnApp) {
    const SampleAccount account;
    const TableReader report{salesBody(account, {dayOf(2024, 9, 1), dayOf(2026, 8, 31)})};
    std::set<std::string> types;
    for (const auto& line : report.lines()) {
        if (report.cell(line, "SKU").find("metrosketch") != std::string::npos) {
            types.insert(report.cell(line, "Product Type Identifier"));
        }
    }
    EXPECT_EQ(types, (std::set<std::string>{"3F", "7F", "IA3"}));
}

TEST(SampleAccount, GrowsWithTheOrdersItIsPlannedFor) {
    const auto august = wholeMonth(std::chrono::year{2026} / 8);
    const auto usual = SampleAccount{}.sales({august.first, august.first}).size();
    const auto large = SampleAccount{{.ordersPerDay = 3200}}.sales({august.first, august.first}).size();
    EXPECT_GT(large, 10 * usual);
}

TEST(ShelfPrice, FollowsTheHabitsOfEachCurrency) {
    const struct {
        const char* currency;
        std::int64_t dollarCents;
        Money price;
    } cases[] = {
        {"USD", 499, {499, 2}},    {"EUR", 499, {499, 2}},    {"CHF", 499, {500, 2}},
        {"JPY", 99, {160, 0}},     {"KRW", 499, {7500, 0}},   {"INR", 499, {49900, 2}},
        {"BRL", 499, {2990, 2}},   {"VND", 499, {125000, 0}}, {"CAD", 499, {699, 2}},
        {"HUF", 999, {399000, 2}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shelfPrice(currencyNamed(c.currency), c.dollarCents), c.price) << c.currency;
    }
}

}  // namespace
}  // namespace vantrell::sample
