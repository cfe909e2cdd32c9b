#include "figures/CSVLine.h"
#include "figures/Exports.h"
#include "testing/AccountFile.h"
#include "testing/Cases.h"
#include "testing/Golden.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::EarningsFixture;

TEST(CSVLine, QuotesOnlyWhatWouldBeReadWrongly) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/csv-lines.tsv", [](const std::string& joined) {
        std::vector<std::string> fields;
        for (const QString& field : QString::fromStdString(joined).split(u'|')) {
            fields.push_back(field.toStdString());
        }
        return csvLine(fields);
    });
}

TEST(Exports, OfEachKindAreTheFilesThatAreKept) {
    const std::filesystem::path folder = std::filesystem::path(VANTRELL_TEST_DATA) / "exports";
    EarningsFixture fixture;
    testing::AccountFile(folder / "exports.account").storeIn(fixture);
    EarningsStore& store = fixture.reload();
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

// Written down with the version that made the store.
TEST(Exports, OfAStoreOfAnOlderVersionAreWhatTheyWere) {
    const std::filesystem::path kept(VANTRELL_TEST_DATA "/../../data/data/stores/vantrell-1.sqlite");
    EarningsFixture fixture(kept);
    const EarningsStore& store = fixture.reload();
    std::string all = exportDays(store, 90);
    for (const ExportKind kind :
         {ExportKind::months, ExportKind::years, ExportKind::payouts, ExportKind::products}) {
        all += exportText(store, kind);
    }
    testing::expectMatchesFile(all, std::filesystem::path(VANTRELL_TEST_DATA) / "exports/of-version-1.csv");
}

TEST(Exports, OfAnEmptyStoreAreTheirHeadingsAndTheDaysAndMonthsThatThereAre) {
    EarningsFixture fixture;
    const EarningsStore& store = fixture.reload();
    std::string all;
    for (const ExportKind kind : exportKinds) {
        all += std::string(exportFileName(kind)) + "\n" + exportText(store, kind) + "\n";
    }
    testing::expectMatchesFile(all, std::filesystem::path(VANTRELL_TEST_DATA) / "exports/of-nothing.txt");
    EXPECT_EQ(exportDays(store, 0), exportDays(store, 1));
}

}  // namespace
}  // namespace vantrell
