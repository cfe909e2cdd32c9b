#include "earnings/CSVLine.h"
#include "earnings/Exports.h"
#include "testing/EarningsFixture.h"

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
        {"one field", {"a"}, "a"},
        {"a comma", {"Notes, Pro", "b"}, "\"Notes, Pro\",b"},
        {"a quote", {"The \"Best\""}, "\"The \"\"Best\"\"\""},
        {"a line feed", {"a\nb"}, "\"a\nb\""},
        {"a carriage return alone", {"a\rb"}, "a\rb"},
        {"the joiner of captions", {"App · Subscription"}, "App · Subscription"},
        {"a breakdown", {"EUR 1.5; USD -2"}, "EUR 1.5; USD -2"},
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

constexpr const char* statsColumns =
    "app_units,iap_units,update_units,redownload_units,refunded_units,"
    "proceeds_usd,currencies_without_rate,proceeds_by_currency\n";

std::string firstLines(const std::string& text, std::ptrdiff_t count) {
    std::size_t end = 0;
    for (std::ptrdiff_t line = 0; line < count; ++line) {
        end = text.find('\n', end) + 1;
    }
    return text.substr(0, end);
}

TEST(Exports, OfDaysHaveEveryDayNewestFirst) {
    EarningsFixture fixture;
    fill(fixture);
    const EarningsStore& store = fixture.reload();
    EXPECT_EQ(exportDays(store, 3), std::string("date,report_status,") + statsColumns +
                                        "2026-11-21,pending,0,0,0,0,0,0,,\n"
                                        "2026-11-20,ok,3,3,12,4,1,6.4,JPY,EUR 2.5; JPY 100; USD 1.4\n"
                                        "2026-11-19,missing,0,0,0,0,0,0,,\n");
    const std::string yesterday =
        std::string("date,report_status,") + statsColumns + "2026-11-21,pending,0,0,0,0,0,0,,\n";
    EXPECT_EQ(exportDays(store, 1), yesterday);
    EXPECT_EQ(exportDays(store, 0), yesterday);
    const std::string year = exportText(store, ExportKind::days);
    EXPECT_EQ(std::ranges::count(year, '\n'), 366);
    EXPECT_EQ(year.substr(year.size() - 33), "2025-11-22,missing,0,0,0,0,0,0,,\n");
}

TEST(Exports, OfPeriodsSayWhereTheFiguresComeFrom) {
    EarningsFixture fixture;
    fill(fixture);
    const EarningsStore& store = fixture.reload();
    const std::string header = std::string("period,source,") + statsColumns;
    const std::string months = exportText(store, ExportKind::months);
    EXPECT_EQ(firstLines(months, 4),
              header +
                  "2026-11,From daily reports · MTD,3,3,12,4,1,6.4,JPY,EUR 2.5; JPY 100; USD 1.4\n"
                  "2026-10,Monthly report,5,0,0,0,0,5,,USD 5\n"
                  "2026-09,Monthly report,0,0,0,0,0,0,,\n");
    EXPECT_EQ(std::ranges::count(months, '\n'), 14);
    EXPECT_EQ(exportText(store, ExportKind::years),
              header +
                  "2026,From daily reports · YTD,3,3,12,4,1,6.4,JPY,EUR 2.5; JPY 100; USD 1.4\n"
                  "2025,Yearly report,7,0,0,0,0,7,,USD 7\n");
}

TEST(Exports, OfPayoutsHaveTheDatesOfTheUsersCalendar) {
    EarningsFixture fixture;
    fill(fixture);
    const std::string header =
        "fiscal_period,start_date,end_date,units,returns,paid_usd,"
        "currencies_without_rate,paid_by_currency\n2027-01,,,2,0,8,,EUR 4\n";
    EXPECT_EQ(exportPayouts(fixture.reload()),
              header + "2026-12,2026-08-30,2026-09-26,11,3,5.25,JPY,JPY 9; USD 5.25\n");
    // Where noon of Greenwich is the next day already.
    fixture.localTime.setZone("Pacific/Kiritimati");
    EXPECT_EQ(exportPayouts(fixture.store()),
              header + "2026-12,2026-08-31,2026-09-27,11,3,5.25,JPY,JPY 9; USD 5.25\n");
}

TEST(Exports, OfProductsQuoteTitlesAndNameTheirKind) {
    EarningsFixture fixture;
    fill(fixture);
    EXPECT_EQ(exportProducts(fixture.reload()),
              std::string("title,kind,apple_identifier,") + statsColumns +
                  "\"Notes, \"\"Pro\"\"\",App,1,10,0,0,0,1,8.4,,USD 8.4\n"
                  "Yearly,\"Notes, \"\"Pro\"\" · Subscription\",11,0,2,0,0,0,5,,EUR 2.5\n"
                  "app,In-app purchase,12,0,1,0,0,0,0,JPY,JPY 100\n");
}

TEST(Exports, FollowTheDisplayCurrencyInHeaderAndConvertedColumnAlone) {
    EarningsFixture fixture;
    fill(fixture);
    fixture.reload().setDisplayCurrency("EUR");
    EXPECT_EQ(firstLines(exportText(fixture.store(), ExportKind::years), 2),
              "period,source,app_units,iap_units,update_units,redownload_units,refunded_units,proceeds_eur,"
              "currencies_without_rate,proceeds_by_currency\n"
              "2026,From daily reports · YTD,3,3,12,4,1,3.2,JPY,EUR 2.5; JPY 100; USD 1.4\n");
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
