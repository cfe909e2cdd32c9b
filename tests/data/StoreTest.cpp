#include "testing/PlainClient.h"
#include "testing/StoreFixture.h"

#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::fullSalesRow;
using testing::noon;
using testing::sale;
using testing::StoreFixture;
using testing::unitsOf;

ParsedFinanceRow fullFinanceRow() {
    return {.startDate = noon(2026, 6, 28),
            .endDate = distantPast,
            .vendorIdentifier = "VENDOR",
            .title = "App, \"quoted\"",
            .productType = "1F",
            .quantity = -2,
            .partnerShare = *Decimal::parse("0.7"),
            .extendedPartnerShare = *Decimal::parse("-1.4"),
            .partnerShareCurrency = "USD",
            .saleOrReturn = "R",
            .appleID = 42,
            .country = "US",
            .promoCode = "P",
            .customerPrice = *Decimal::parse("0.99"),
            .customerCurrency = "USD"};
}

TEST(Store, CutsAMessageThatIsTooLongOnceAndForAll) {
    StoreFixture store;
    const auto messageBytes = [&store] {
        return store.open()->salesReports().all().begin()->second.message.size();
    };
    ModelContext* context = store.open();
    context->salesReports().insert({.message = std::string(1'000'000, 'x')});
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_EQ(messageBytes(), mostMessageBytes);
    context = store.open();
    EXPECT_TRUE(context->hasChanges());
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_FALSE(store.open()->hasChanges());
    EXPECT_EQ(messageBytes(), mostMessageBytes);
}

TEST(Store, ReadsBackEveryPropertyAfterReopening) {
    StoreFixture store;
    ModelContext* context = store.open();
    ASSERT_NE(context, nullptr) << store.error();
    const SalesReport sales{"default", "MONTHLY",        "2026-08",       "a later status",
                            7,         "skipped\nlines", noon(2026, 9, 5)};
    const FinanceReport finance{"default", "ZZ",        "2026-11",         "ok",        1,
                                "",        distantPast, noon(2026, 7, 26), std::nullopt};
    const RateSet rates{"USD", noon(2026, 9, 1), {{"EUR", 0.1 + 0.2}, {"KRW", 1391.5}, {"USD", 1}}};
    const SyncLogEntry entry{noon(2026, 9, 1), "rates", "ok", "3 currencies against USD"};
    context->salesReports().insert(sales);
    context->financeReports().insert(finance);
    context->rateSets().insert(rates);
    context->syncLog().insert(entry);
    context->replaceSalesRows("MONTHLY", "2026-08", {fullSalesRow(), SalesRowView()});
    context->replaceFinanceRows("ZZ", "2026-11", {fullFinanceRow()});
    ASSERT_EQ(context->save(), std::nullopt);

    context = store.open();
    ASSERT_NE(context, nullptr) << store.error();
    EXPECT_EQ(context->salesReports().all().begin()->second, sales);
    EXPECT_EQ(context->salesReports().all().begin()->second.status(), ReportStatus::missing);
    EXPECT_EQ(context->financeReports().all().begin()->second, finance);
    EXPECT_EQ(context->rateSets().all().begin()->second, rates);
    EXPECT_EQ(context->syncLog().all().begin()->second, entry);
    EXPECT_EQ(context->fetchSalesRows(),
              (std::vector<SalesRow>{{"default", "MONTHLY", "2026-08", fullSalesRow<std::string>()},
                                     {"default", "MONTHLY", "2026-08", ParsedSalesRow()}}));
    EXPECT_EQ(context->fetchFinanceRows(),
              (std::vector<FinanceRow>{{"default", "ZZ", "2026-11", fullFinanceRow()}}));
}

TEST(Store, KeepsDecimalsExactInEveryForm) {
    std::istringstream words(
        "0 -0.01 1000000 0.000000000000001 0.0000000000000001 36028797018963967.5 576460752303423487 "
        "-576460752303423488 -576460752303423489 9223372036854775807 12345678901234567890123456789012345678 "
        "1" +
        std::string(400, '0'));
    const std::vector<std::string> texts{std::istream_iterator<std::string>(words), {}};
    StoreFixture store;
    ModelContext* context = store.open();
    std::vector<SalesRowView> rows;
    for (const std::string& text : texts) {
        rows.push_back(sale(1, text));
    }
    context->replaceSalesRows("DAILY", "2026-08-14", rows);
    ASSERT_EQ(context->save(), std::nullopt);
    context = store.open();
    const auto stored = context->fetchSalesRows();
    store.close();
    std::istringstream shown(testing::asked(store.file(), "SELECT proceedsPerUnit FROM SalesRow"));
    for (std::size_t index = 0; index < texts.size(); ++index) {
        EXPECT_EQ(stored.at(index).line.proceedsPerUnit.text(), texts[index]);
        std::string text;
        std::getline(shown, text);
        EXPECT_EQ(text, texts[index]);
    }
}

TEST(Store, GivesRowsByFrequencyThenDateThenFile) {
    StoreFixture store;
    ModelContext* context = store.open();
    context->replaceSalesRows("YEARLY", "2024", {sale(1, "1")});
    context->replaceSalesRows("DAILY", "2026-08-15", {sale(2, "1"), sale(3, "1")});
    context->replaceSalesRows("MONTHLY", "2026-08", {sale(4, "1")});
    context->replaceSalesRows("DAILY", "2026-08-14", {sale(5, "1")});
    const std::vector<std::int64_t> ordered{5, 2, 3, 4, 1};
    EXPECT_EQ(unitsOf(*context), ordered);
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_EQ(unitsOf(*store.open()), ordered);
}

TEST(Store, ReplacesOnlyTheRowsOfThatReport) {
    StoreFixture store;
    ModelContext* context = store.open();
    context->replaceSalesRows("DAILY", "2026-08-14", {sale(1, "1"), sale(2, "1")});
    context->replaceSalesRows("DAILY", "2026-08-15", {sale(3, "1")});
    ASSERT_EQ(context->save(), std::nullopt);
    context->replaceSalesRows("DAILY", "2026-08-14", {sale(4, "1")});
    context->replaceSalesRows("DAILY", "2026-08-14", {sale(5, "1")});
    context->replaceSalesRows("DAILY", "2026-08-15", {});
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_EQ(unitsOf(*store.open()), std::vector<std::int64_t>{5});
}

TEST(Store, RemovesARecordForGood) {
    StoreFixture store;
    ModelContext* context = store.open();
    for (const char* key : {"kept", "removed"}) {
        context->syncLog().insert({.key = key});
    }
    ASSERT_EQ(context->save(), std::nullopt);
    context->syncLog().remove(2);
    EXPECT_TRUE(context->hasChanges());
    ASSERT_EQ(context->save(), std::nullopt);
    EXPECT_FALSE(context->hasChanges());
    const auto& log = store.open()->syncLog().all();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(log.begin()->second.key, "kept");
}

TEST(Store, FindsTheFirstOfTwoRecordsWithOneKey) {
    StoreFixture store;
    ModelContext* context = store.open();
    const SalesReport first{.reportDate = "2026-08-14", .statusRaw = "ok"};
    const SalesReport second{.reportDate = "2026-08-14", .statusRaw = "error"};
    context->salesReports().insert(first);
    context->salesReports().insert(second);
    ASSERT_EQ(context->save(), std::nullopt);
    context = store.open();
    EXPECT_EQ(context->salesReports().all().size(), 2U);
    EXPECT_EQ(context->salesReports().find(salesReportKey("DAILY", "2026-08-14"))->record, first);
}

}  // namespace
}  // namespace vantrell
