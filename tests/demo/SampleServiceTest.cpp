#include "icons/AppIconStore.h"
#include "icons/ImageDesk.h"
#include "platform/KeyPair.h"
#include "platform/QtHttpClient.h"
#include "reports/ASCClient.h"
#include "reports/ReportText.h"
#include "sample/FinanceBody.h"
#include "sample/SalesBody.h"
#include "sample/SampleService.h"
#include "sample/SampleTotals.h"
#include "testing/Cases.h"
#include "testing/ManualClock.h"
#include "testing/MemoryDefaults.h"
#include "testing/TemporaryFolder.h"

#include <QDateTime>
#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using sample::dayOf;
using sample::TokenFault;

/// 22 November 2026 at 6 am in California.
constexpr Instant morning = dayOf(2026, 11, 22) + 14h;

/// The text of a report that was received; empty for any other answer.
std::string textOf(const ReportResponse& answer) {
    const auto* const success = std::get_if<response::Success>(&answer);
    ReportText text(success == nullptr ? "" : success->body);
    std::string whole;
    while (const auto lines = text.nextLines()) {
        whole += *lines;
    }
    return whole;
}

/// The sample service, asked by the program's own clients.
class SampleService : public ::testing::Test {
  protected:
    SampleService() { client.setCredentials(seller); }

    /// In one line. `frequency` may be "FINANCE" as well.
    std::string ask(const std::string& frequency, const std::string& date) {
        return diagnosticText(QCoro::waitFor(
            frequency == "FINANCE" ? client.fetchFinance(date, {})
                                   : client.fetchSales(*reportFrequency(frequency), date, {}, {})));
    }

    KeyPair keys = generateKeyPair();
    APICredentials seller{"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W", keys.privatePEM, "60419372"};
    testing::ManualClock clock{morning};
    sample::SampleAccount account;
    sample::SampleService service{
        account, {seller.issuerID, seller.keyID, seller.vendorNumber, keys.publicPEM}, clock};
    QtHttpClient http;
    testing::ManualClock clientsClock{morning};
    ASCClient client{http, clientsClock, service.origin()};
};

TEST_F(SampleService, SendsWhatWasSoldAndPaidInTheVersionThatItHas) {
    const auto august = sample::wholeMonth(std::chrono::year{2026} / 8);
    const struct {
        const char* name;
        ReportFrequency frequency;
        std::string date;
        sample::DateRange range;
        std::size_t requests;
    } cases[] = {
        {"a day", ReportFrequency::daily, "2026-08-12", {dayOf(2026, 8, 12), dayOf(2026, 8, 12)}, 1},
        {"a day in the older version",
         ReportFrequency::daily,
         "2026-08-11",
         {dayOf(2026, 8, 11), dayOf(2026, 8, 11)},
         2},
        {"a month", ReportFrequency::monthly, "2026-08", august, 1},
    };
    for (const auto& [name, frequency, date, range, requests] : cases) {
        service.log().clear();
        EXPECT_TRUE(textOf(QCoro::waitFor(client.fetchSales(frequency, date, {}, {}))) ==
                    salesBody(account, range))
            << name;
        EXPECT_EQ(service.log().count(), requests) << name;
    }
    EXPECT_TRUE(textOf(QCoro::waitFor(client.fetchFinance("2026-11", {}))) == financeBody(account, august));
}

TEST_F(SampleService, PublishesEachReportWhenTheRealOneDoesAndForgetsItInTime) {
    const auto table = std::filesystem::path(VANTRELL_TEST_DATA) / "publication.tsv";
    for (const auto& cells : testing::linesOfCases(table, 5)) {
        const auto time = QDateTime::fromString(QString::fromStdString(cells[3] + "Z"), Qt::ISODate);
        const Instant now{std::chrono::milliseconds(time.toMSecsSinceEpoch())};
        clock.setNow(now);
        clientsClock.setNow(now);
        client.setCredentials(seller);
        EXPECT_TRUE(ask(cells[1], cells[2]).starts_with(cells[4])) << cells[0];
    }
}

TEST_F(SampleService, LetsNobodyElseInAndNooneWhenATestSaysSo) {
    const struct {
        const char* name;
        APICredentials credentials;
        std::chrono::hours ahead;
        std::optional<TokenFault> fault;
    } cases[] = {
        {"another issuer",
         {"somebody", seller.keyID, seller.privateKeyPEM, seller.vendorNumber},
         0h,
         TokenFault::issuer},
        {"another key ID",
         {seller.issuerID, "AAAAAAAAAA", seller.privateKeyPEM, seller.vendorNumber},
         0h,
         TokenFault::keyID},
        {"another key",
         {seller.issuerID, seller.keyID, generateKeyPair().privatePEM, seller.vendorNumber},
         0h,
         TokenFault::signature},
        {"another seller", {seller.issuerID, seller.keyID, seller.privateKeyPEM, "60419373"}, 0h, {}},
        {"an hour ago", seller, -1h, TokenFault::expired},
        {"from the future", seller, 1h, TokenFault::fromTheFuture},
    };
    for (const auto& [name, credentials, ahead, fault] : cases) {
        clientsClock.setNow(morning + ahead);
        client.setCredentials(credentials);
        EXPECT_TRUE(ask("DAILY", "2026-11-21").starts_with("Authentication failed")) << name;
        EXPECT_EQ(service.log().requests().back().tokenFault, fault) << name;
    }
    clientsClock.setNow(morning);
    client.setCredentials(seller);
    service.faults().rateLimitNext();
    EXPECT_TRUE(ask("DAILY", "2026-11-21").starts_with("Rate limited"));
    EXPECT_TRUE(ask("DAILY", "2026-11-21").starts_with("OK"));
}

TEST_F(SampleService, GivesRatesForEveryCurrencyItPaysIn) {
    const auto rates =
        std::get<HttpResponse>(QCoro::waitFor(http.get({.url = service.origin() + "/v6/latest/USD"}, {})));
    const auto totals = salesTotals(account, sample::wholeMonth(std::chrono::year{2026} / 8));
    EXPECT_EQ(totals.proceeds.size(), 25U);
    for (const auto& [currency, amount] : totals.proceeds) {
        EXPECT_NE(rates.body.find("\"" + currency + "\":"), std::string::npos) << currency;
    }
}

QImage shown(const QFuture<QImage>& picture) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture.isFinished(); }, 10'000));
    return picture.isResultReadyAt(0) ? picture.result() : QImage();
}

TEST_F(SampleService, HasIconsThatAreFoundFetchedAndKeptForTheNextStart) {
    testing::MemoryDefaults defaults;
    const testing::TemporaryFolder folder;
    const Locale germany(LocaleNames{"de_DE.UTF-8", "C", "C", "C", "C"});
    const std::vector<std::int64_t> apps{9900000101, 9900000106, 9900000107, 9900000110};
    for (const bool isFirst : {true, false}) {
        service.log().clear();
        AppIconStore store({http, defaults, germany}, service.origin());
        ImageLoader loader(http, {.folder = folder.path(), .plainOrigin = service.origin()});
        ImageDesk desk(loader);
        QCoro::waitFor(store.loadIcons(apps));
        ASSERT_EQ(store.urls().size(), 3U) << "one was withdrawn";
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000101))).size(), QSize(100, 100));
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000106))).size(), QSize(60, 60))
            << "there is no larger one";
        EXPECT_EQ(shown(desk.ask(store.urls().at(9900000110))).size(), QSize(100, 100))
            << "not sold in Germany";
        EXPECT_EQ(service.log().count("/lookup"), 2U)
            << "the withdrawn one is looked for again at each start";
        EXPECT_EQ(service.log().count("/icon/"), isFirst ? 3U : 0U);
    }
}

}  // namespace
}  // namespace vantrell
