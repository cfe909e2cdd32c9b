#include "testing/EarningsFixture.h"

#include <cmath>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;
using testing::Line;

constexpr const char* subscription = "IAY";

/// "30 days | 365 days | year to date | all time" of a table's entry.
template <typename Entry>
std::string windows(const Entry& entry) {
    return testing::money(entry.last30) + " | " + testing::money(entry.last365) + " | " +
           testing::money(entry.ytd) + " | " + testing::money(entry.allTime);
}

struct WindowCase {
    const char* name;
    ReportFrequency frequency;
    const char* date;
    const char* windows;
};

// Today is 22 November 2026, and 2024 has a yearly report.
constexpr WindowCase windowCases[] = {
    {"today", ReportFrequency::daily, "2026-11-22", "USD 1 | USD 1 | USD 1 | USD 1"},
    {"30 days ago", ReportFrequency::daily, "2026-10-23", "USD 1 | USD 1 | USD 1 | USD 1"},
    {"31 days ago", ReportFrequency::daily, "2026-10-22", " | USD 1 | USD 1 | USD 1"},
    {"the first of the year", ReportFrequency::daily, "2026-01-01", " | USD 1 | USD 1 | USD 1"},
    {"the year before", ReportFrequency::daily, "2025-12-31", " | USD 1 |  | USD 1"},
    {"365 days ago", ReportFrequency::daily, "2025-11-22", " | USD 1 |  | USD 1"},
    {"366 days ago", ReportFrequency::daily, "2025-11-21", " |  |  | USD 1"},
    {"a day that a yearly report covers", ReportFrequency::daily, "2024-12-31", " |  |  | "},
    {"a year", ReportFrequency::yearly, "2023", " |  |  | USD 1"},
    {"a month", ReportFrequency::monthly, "2026-10", " |  |  | "},
    {"a week", ReportFrequency::weekly, "2026-11-15", " |  |  | "},
};

TEST(AppTable, CountsALineInTheWindowsThatItsReportLiesIn) {
    for (const WindowCase& row : windowCases) {
        EarningsFixture fixture;
        fixture.report(ReportFrequency::yearly, "2024", {});
        fixture.report(row.frequency, row.date,
                       {{}, {.appleID = 11, .productType = subscription, .parentSKU = "app"}});
        EarningsStore& store = fixture.reload();
        const auto products = store.productWindows();
        ASSERT_TRUE(products.contains(1)) << row.name;
        EXPECT_EQ(windows(products.at(1).back()), row.windows) << row.name;
        std::string twice = row.windows;
        for (std::size_t at = 0; (at = twice.find('1', at)) != std::string::npos;) {
            twice[at] = '2';
        }
        EXPECT_EQ(windows(store.appTable().front()), twice) << row.name;
    }
}

TEST(AppTable, HasEveryAppLargestFirstAndEqualsInTheOrderOfTheCatalog) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    fixture.daily("2026-11-20",
                  {{.appleID = 1, .proceeds = "0", .title = "Zero"},
                   {.appleID = 2, .productType = "7", .units = 3, .title = "Updates only", .sku = "b"},
                   {.appleID = 3, .proceeds = "3", .title = "Three", .sku = "c"},
                   {.appleID = 4, .proceeds = "2", .currency = "EUR", .title = "Four", .sku = "d"},
                   {.appleID = 5, .proceeds = "99", .currency = "CHF", .title = "No rate", .sku = "e"},
                   {.appleID = 6, .units = -1, .proceeds = "1", .title = "Refunded", .sku = "f"},
                   {.appleID = 0, .proceeds = "1000"}});
    const auto table = fixture.reload().appTable();
    std::string shown;
    for (const AppTableEntry& entry : table) {
        shown += entry.app.title + " " + std::to_string(entry.sortValue).substr(0, 4) + "; ";
    }
    EXPECT_EQ(shown, "Four 4.00; Three 3.00; No rate 0.00; Updates only 0.00; Zero 0.00; Refunded -1.0; ");
    EXPECT_EQ(table[3].allTime.updateUnits, 3);
}

std::string described(const std::vector<ProductWindowStat>& products) {
    std::string text;
    for (const ProductWindowStat& product : products) {
        text += std::to_string(product.productID) + " " + product.title +
                (product.isAppPurchases ? " (the app) " : " ") + testing::money(product.allTime) + "; ";
    }
    return text;
}

TEST(ProductWindows, PutThePaidAppFirstAndItsProductsByAmount) {
    EarningsFixture fixture;
    const auto product = [](std::int64_t id, const char* proceeds, const char* parent) {
        return Line{
            .appleID = id, .productType = "IA1", .proceeds = proceeds, .title = "P", .parentSKU = parent};
    };
    fixture.daily("2026-11-20", {{.appleID = 1, .proceeds = "1"},
                                 {.appleID = 1, .productType = "7", .units = 9},
                                 product(12, "5", "app"),
                                 product(11, "7", "app"),
                                 product(13, "0", "app"),
                                 product(14, "50", "gone"),
                                 {.appleID = 2, .proceeds = "0", .sku = "free"},
                                 product(21, "3", "free"),
                                 {.appleID = 3, .productType = "7", .sku = "updates"}});
    const auto windows = fixture.reload().productWindows();
    ASSERT_EQ(windows.size(), 2U);
    EXPECT_EQ(described(windows.at(1)), "1 Purchases (the app) USD 1; 11 P USD 7; 12 P USD 5; 13 P ; ");
    EXPECT_EQ(described(windows.at(2)), "21 P USD 3; ");
}

TEST(YearMatrix, HasOneFrequencyAYearAndOnlyYearsWorthSomething) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    fixture.report(ReportFrequency::yearly, "2022", {{.proceeds = "0"}});
    fixture.report(ReportFrequency::yearly, "2024", {{.proceeds = "1"}, {.appleID = 0, .proceeds = "50"}});
    fixture.daily("2024-05-01", {{.proceeds = "2"}});
    fixture.daily("2025-05-01", {{.proceeds = "4"}, {.units = -2, .proceeds = "4"}});
    fixture.daily("2026-05-01",
                  {{.proceeds = "1", .currency = "EUR"},
                   {.proceeds = "1", .currency = "CHF"},
                   {.productType = "X", .proceeds = "100"},
                   {.appleID = 2, .proceeds = "8", .sku = "other"},
                   {.appleID = 11, .productType = "IA1", .proceeds = "16", .parentSKU = "app"}});
    fixture.daily("2026-05-02", {{.proceeds = "32"}});
    const YearMatrix matrix = fixture.reload().yearMatrix();
    EXPECT_EQ(matrix.years, (std::vector<std::string>{"2024", "2025", "2026"}));
    using Years = std::map<std::string, double, std::less<>>;
    EXPECT_EQ(matrix.byApp.at(1), (Years{{"2022", 0}, {"2024", 1}, {"2025", -4}, {"2026", 50}}));
    EXPECT_EQ(matrix.byApp.at(2), (Years{{"2026", 8}}));
    EXPECT_EQ(matrix.byApp.size(), 2U);
}

TEST(ProductStats, NameTheProductAndItsAppLargestFirst) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    const auto product = [](std::int64_t id, const char* type, const char* proceeds, const char* parent) {
        return Line{
            .appleID = id, .productType = type, .proceeds = proceeds, .title = "P", .parentSKU = parent};
    };
    fixture.daily(
        "2026-11-20",
        {{.appleID = 1, .units = -1, .title = "App"},
         {.appleID = 1, .productType = "3", .units = 7, .title = "App"},
         product(11, "IA1", "3", "app"),
         product(12, subscription, "5", "app"),
         product(13, "IA1", "4", "gone"),
         {.appleID = 14, .productType = subscription, .proceeds = "3", .currency = "EUR", .title = "Q"},
         {.appleID = 0, .proceeds = "2", .title = "None"}});
    fixture.report(ReportFrequency::monthly, "2026-10",
                   {{.appleID = 15, .title = "Monthly", .sku = "monthly"}});
    const auto shown = [](const std::vector<ProductStat>& stats) {
        std::string text;
        for (const ProductStat& stat : stats) {
            text += stat.title + "/" + stat.subtitle + " " + testing::money(stat.stats) + "; ";
        }
        return text;
    };
    EarningsStore& store = fixture.reload();
    EXPECT_EQ(shown(store.productStats({})),
              "Q/Subscription EUR 3; P/App · Subscription USD 5; P/In-app purchase USD 4; "
              "P/App · In-app purchase USD 3; 0/ USD 2; App/App USD -1; ");
    EXPECT_EQ(store.productStats({}).back().stats.redownloadUnits, 0);
    EXPECT_EQ(shown(store.productStats(std::set<std::int64_t>{1})),
              "P/App · Subscription USD 5; P/App · In-app purchase USD 3; App/App USD -1; ");
}

TEST(CountryStats, KeepTheLargestAndPutRefundsLast) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 3}, {"EUR", 1}});
    fixture.daily("2026-11-20", {{.units = -5, .country = "FR"},
                                 {.proceeds = "1", .country = ""},
                                 {.proceeds = "9", .currency = "CHF", .country = "CH"},
                                 {.productType = "X", .proceeds = "99", .country = "XX"},
                                 {.proceeds = "2", .currency = "EUR", .country = "DE"},
                                 {.proceeds = "4", .country = "US"},
                                 {.productType = "IA1", .proceeds = "2", .country = "US"},
                                 {.proceeds = "6", .country = "AT"}});
    const auto shown = [&](std::size_t limit, const AppFilter& apps) {
        std::string text;
        for (const CountryStat& stat : fixture.store().countryStats(apps, limit)) {
            text += stat.country + " " + stat.amount.text() + "; ";
        }
        return text;
    };
    fixture.reload();
    EXPECT_EQ(shown(20, {}), "AT 6; DE 6; US 6; — 1; FR -5; ");
    EXPECT_EQ(shown(2, {}), "AT 6; DE 6; ");
    EXPECT_EQ(shown(20, std::set<std::int64_t>{}), "");
    // Summed before it is converted: three thirds are one.
    fixture.daily("2026-11-20", {Line{}, Line{}, Line{}});
    fixture.reload().setDisplayCurrency("EUR");
    EXPECT_EQ(shown(20, {}), "US 1; ");
}

// A rate can be so small or so large that an amount leaves the range of a double.
TEST(Tables, StayInOrderWhateverTheRates) {
    EarningsFixture fixture;
    fixture.rates({{"USD", 1e300}, {"EUR", 1e-300}, {"JPY", 1e-320}});
    fixture.daily("2026-11-20", {{.appleID = 1, .currency = "EUR", .sku = "a"},
                                 {.appleID = 2, .units = -1, .currency = "JPY", .sku = "b"},
                                 {.appleID = 3, .currency = "JPY", .sku = "c"},
                                 {.appleID = 3, .units = 2, .currency = "JPY", .sku = "c"},
                                 {.appleID = 4, .sku = "d"}});
    EarningsStore& store = fixture.reload();
    std::string order;
    for (const AppTableEntry& entry : store.appTable()) {
        order += std::to_string(entry.app.id) + (std::isfinite(entry.sortValue) ? " " : "! ");
    }
    EXPECT_EQ(order, "1 3 4 2 ");
    for (const DayPoint& point : store.dayPoints("2026-11-20", "2026-11-20", {})) {
        EXPECT_FALSE(std::isnan(point.proceeds) || std::isnan(point.refunds));
    }
}

}  // namespace
}  // namespace vantrell
