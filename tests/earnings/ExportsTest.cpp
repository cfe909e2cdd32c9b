#include "AccountFile.h"
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

TEST(Exports, OfEachKindAreTheFilesThatAreKept) {
    const std::filesystem::path folder = std::filesystem::path(VANTRELL_TEST_DATA) / "exports";
    EarningsFixture fixture;
    const testing::AccountFile account(folder / "exports.account", fixture);
    EarningsStore& store = fixture.store();
    const auto expectFile = [&folder](const char* name, const std::string& text) {
        testing::expectMatchesFile(text, folder / name);
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
