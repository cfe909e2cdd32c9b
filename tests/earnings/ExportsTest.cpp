#include "earnings/CSVLine.h"
#include "earnings/Exports.h"
#include "testing/EarningsFixture.h"
#include "testing/Golden.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;

TEST(CSVLine, QuotesOnlyWhatWouldBeReadWrongly) {
    const struct {
        const char* name;
        std::vector<std::string> fields;
        const char* line;
    } cases[] = {
        {"plain", {"a", "1", "-0.5"}, "a,1,-0.5"},
        {"empty fields", {"", "", ""}, ",,"},
        {"a comma", {"Notes, Pro", "b"}, "\"Notes, Pro\",b"},
        {"a quote", {"The \"Best\""}, "\"The \"\"Best\"\"\""},
        {"a line feed", {"a\nb"}, "\"a\nb\""},
        {"a carriage return alone", {"a\rb"}, "a\rb"},
        {"blanks stay", {" a "}, " a "},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(csvLine(row.fields), row.line) << row.name;
    }
}

TEST(BreakdownText, IsExactAndInTheOrderOfTheCodes) {
    EXPECT_EQ(breakdownText({}), "");
    EXPECT_EQ(breakdownText({{"USD", *Decimal::parse("-1234567.890")},
                             {"EUR", *Decimal::parse("1e3")},
                             {"KWD", *Decimal::parse("0.001")},
                             {"JPY", Decimal()}}),
              "EUR 1000; JPY 0; KWD 0.001; USD -1234567.89");
}

// What every kind of export is made of: sales in three currencies, one of them without a rate, and payments.
void fill(EarningsFixture& fixture) {
    fixture.rates({{"USD", 1}, {"EUR", 0.5}});
    fixture.daily("2026-11-20",
                  {{.units = 3, .proceeds = "0.7", .title = "Notes, \"Pro\""},
                   {.units = -1, .proceeds = "0.70", .title = "Notes, \"Pro\""},
                   {.productType = "7T", .units = 12, .title = "Notes, \"Pro\""},
                   {.productType = "3", .units = 4, .title = "Notes, \"Pro\""},
                   {.appleID = 11,
                    .productType = "IAY",
                    .units = 2,
                    .proceeds = "1.25",
                    .currency = "EUR",
                    .title = "Yearly",
                    .parentSKU = "app"},
                   {.appleID = 12, .productType = "IA1", .proceeds = "100", .currency = "JPY"}});
    fixture.report(ReportFrequency::daily, "2026-11-21", {}, ReportStatus::pending);
    fixture.report(ReportFrequency::monthly, "2026-10", {{.units = 5, .title = "Notes, \"Pro\""}});
    fixture.report(ReportFrequency::yearly, "2025", {{.units = 7, .title = "Notes, \"Pro\""}});
    fixture.payments("2026-12", {{.quantity = 10, .share = "7.5", .start = "2026-08-30", .end = "2026-09-26"},
                                 {.quantity = -3, .share = "-2.25", .saleOrReturn = "R"},
                                 {.quantity = 1, .share = "9", .currency = "JPY"}});
    fixture.payments("2027-01", {{.quantity = 2, .share = "4", .currency = "EUR"}});
}

TEST(Exports, OfEachKindAreTheFilesThatAreKept) {
    EarningsFixture fixture;
    fill(fixture);
    EarningsStore& store = fixture.reload();
    const auto expectFile = [](const char* name, const std::string& text) {
        testing::expectMatchesFile(text, std::filesystem::path(VANTRELL_TEST_DATA) / name);
    };
    expectFile("days.csv", exportDays(store, 3));
    expectFile("months.csv", exportText(store, ExportKind::months));
    expectFile("years.csv", exportText(store, ExportKind::years));
    expectFile("payouts.csv", exportText(store, ExportKind::payouts));
    expectFile("products.csv", exportText(store, ExportKind::products));
    // Where noon of Greenwich is the next day already.
    fixture.localTime.setZone("Pacific/Kiritimati");
    expectFile("payouts-in-kiritimati.csv", exportPayouts(store));
    store.setDisplayCurrency("EUR");
    expectFile("years-in-euros.csv", exportText(store, ExportKind::years));
}

TEST(Exports, OfDaysEndYesterdayAndBeginAYearAgo) {
    EarningsFixture fixture;
    const EarningsStore& store = fixture.reload();
    EXPECT_EQ(std::ranges::count(exportDays(store, 1), '\n'), 2);
    EXPECT_EQ(exportDays(store, 0), exportDays(store, 1));
    const std::string year = exportText(store, ExportKind::days);
    EXPECT_EQ(std::ranges::count(year, '\n'), 366);
    EXPECT_EQ(year.substr(year.size() - 33), "2025-11-22,missing,0,0,0,0,0,0,,\n");
}

TEST(Exports, OfAnEmptyStoreAreTheirHeadingsAndHaveNames) {
    EarningsFixture fixture;
    const EarningsStore& store = fixture.reload();
    std::string names;
    for (const ExportKind kind : exportKinds) {
        names += std::string(exportLabel(kind)) + "=" + std::string(exportFileName(kind)) + "; ";
        const std::string text = exportText(store, kind);
        EXPECT_TRUE(text.ends_with('\n') && !text.ends_with("\n\n")) << names;
    }
    EXPECT_EQ(names,
              "Daily (last 365 days)=vantrell-daily; Months=vantrell-months; Years=vantrell-years; "
              "Payouts=vantrell-payouts; Products=vantrell-products; ");
    for (const ExportKind kind : {ExportKind::years, ExportKind::payouts, ExportKind::products}) {
        const std::string text = exportText(store, kind);
        EXPECT_EQ(std::ranges::count(text, '\n'), 1);
    }
}

}  // namespace
}  // namespace vantrell
