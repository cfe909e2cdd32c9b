#include "ServiceFixture.h"
#include "sample/FinanceBody.h"
#include "sample/SalesBody.h"
#include "sample/SampleTotals.h"

#include <set>

#include <QImage>
#include <QJsonDocument>

#include <gmock/gmock.h>
#include <libdeflate.h>

namespace vantrell::testing {
namespace {

using namespace std::chrono_literals;
using sample::dayOf;
using sample::wholeMonth;
using ::testing::HasSubstr;

using SampleService = ServiceFixture;

/// Empty if it is no gzip file, or its checksum or length is wrong.
std::string unpacked(const std::string& file) {
    std::string text(std::size_t{8} << 20U, '\0');
    std::size_t size = 0;
    auto* const decompressor = libdeflate_alloc_decompressor();
    const auto result =
        libdeflate_gzip_decompress(decompressor, file.data(), file.size(), text.data(), text.size(), &size);
    libdeflate_free_decompressor(decompressor);
    text.resize(result == LIBDEFLATE_SUCCESS ? size : 0);
    return text;
}

constexpr auto tooEarly = "not available yet";
constexpr auto tooLate = "no longer available";
constexpr auto nothing = "There were no sales for the date specified.";

TEST_F(SampleService, SendsReportsAsGzipFilesWithAndWithoutAName) {
    const auto august = wholeMonth(std::chrono::year{2026} / 8);
    const struct {
        const char* name;
        Reply reply;
        std::string text;
        char flags;
    } cases[] = {
        {"day", sales(salesQuery("DAILY", "2026-08-14", "1_1")),
         salesBody(account, {dayOf(2026, 8, 14), dayOf(2026, 8, 14)}), 0},
        {"month", sales(salesQuery("MONTHLY", "2026-08", "1_0")), salesBody(account, august), 8},
        {"fiscal period", finance(financeQuery("2026-11")), financeBody(account, august), 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.reply.status, 200);
        EXPECT_TRUE(unpacked(c.reply.body) == c.text);
        EXPECT_EQ(c.reply.body[3], c.flags);
    }
}

TEST_F(SampleService, PublishesEachReportWhenTheRealOneDoesAndForgetsItInTime) {
    const struct {
        const char* name;
        std::string frequency;
        std::string date;
        Instant now;
        int status;
        std::string detail = {};
    } cases[] = {
        {"yesterday before 5 am", "DAILY", "2026-11-21", dayOf(2026, 11, 22) + 12h + 59min, 404, tooEarly},
        {"yesterday from 5 am", "DAILY", "2026-11-21", dayOf(2026, 11, 22) + 13h, 200},
        {"a year ago", "DAILY", "2025-11-22", morning, 200},
        {"more than a year ago", "DAILY", "2025-11-20", morning, 410, tooLate},
        {"last month on the 4th", "MONTHLY", "2026-10", dayOf(2026, 11, 4) + 14h, 404, tooEarly},
        {"last month on the 5th", "MONTHLY", "2026-10", dayOf(2026, 11, 5) + 14h, 200},
        {"last year on 5 January", "YEARLY", "2026", dayOf(2027, 1, 5) + 14h, 404, tooEarly},
        {"last year on 6 January", "YEARLY", "2026", dayOf(2027, 1, 6) + 14h, 200},
        {"ten years ago, before the first sale", "YEARLY", "2016", morning, 404, nothing},
        {"eleven years ago", "YEARLY", "2015", morning, 410, tooLate},
        {"fiscal period after 32 days", "FINANCE", "2027-01", dayOf(2026, 12, 2) + 14h, 404, tooEarly},
        {"fiscal period after 33 days", "FINANCE", "2027-01", dayOf(2026, 12, 3) + 14h, 200},
        {"fiscal period long ago", "FINANCE", "2021-01", morning, 200},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        clock.setNow(c.now);
        const auto reply = c.frequency == "FINANCE" ? finance(financeQuery(c.date))
                                                    : sales(salesQuery(c.frequency, c.date, ""));
        EXPECT_EQ(reply.status, c.status);
        if (c.status != 200) {
            EXPECT_THAT(reply.body, HasSubstr(c.detail));
        }
    }
}

TEST_F(SampleService, HasEachReportInOneVersionAndNamesItToWhoeverAsksForAnother) {
    const struct {
        const char* name;
        std::string frequency;
        std::string date;
        std::string right;
        std::string wrong;
    } cases[] = {
        {"most days", "DAILY", "2026-08-12", "1_1", "1_0"},
        {"some days", "DAILY", "2026-08-11", "1_0", "1_1"},
        {"some months", "MONTHLY", "2026-03", "1_1", "1_0"},
        {"not published yet", "DAILY", "2026-12-11", "1_0", "1_1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto refused = sales(salesQuery(c.frequency, c.date, c.wrong));
        EXPECT_EQ(refused.status, 400);
        EXPECT_THAT(refused.body, HasSubstr("The latest version for this report is " + c.right + "."));
        EXPECT_NE(sales(salesQuery(c.frequency, c.date, c.right)).status, 400);
    }
}

TEST_F(SampleService, GivesRatesForEveryCurrencyItPaysIn) {
    const auto rates = get("/v6/latest/USD").body;
    const auto totals = salesTotals(account, wholeMonth(std::chrono::year{2026} / 8));
    EXPECT_EQ(totals.proceeds.size(), 25U);
    for (const auto& [currency, amount] : totals.proceeds) {
        EXPECT_THAT(rates, HasSubstr("\"" + currency + "\":"));
    }
}

TEST_F(SampleService, LooksUpTheAppsThatAreSoldInACountry) {
    const struct {
        const char* name;
        std::string id;
        std::string country;
        bool found;
    } cases[] = {
        {"app", "9900000101", "DE", true},
        {"not sold here", "9900000110", "DE", false},
        {"sold in one country", "9900000110", "jp", true},
        {"withdrawn", "9900000107", "US", false},
    };
    for (const auto& c : cases) {
        const auto body = get("/lookup", {{"id", c.id}, {"country", c.country}}).body;
        EXPECT_EQ(body.find(c.id) != std::string::npos, c.found) << c.name;
        EXPECT_EQ(body.find(service.origin() + "/icon/") != std::string::npos, c.found) << c.name;
    }
}

TEST_F(SampleService, HasAPictureOfItsOwnAtEveryAddressThatItNames) {
    std::set<std::string> pictures;
    std::size_t named = 0;
    for (const auto& item : account.items()) {
        const auto id = std::to_string(item.appleID);
        const auto found =
            QJsonDocument::fromJson(QByteArray::fromStdString(get("/lookup", {{"id", id}}).body));
        const auto entry = found[QLatin1StringView("results")][0];
        for (const int side : {60, 100}) {
            const auto path = "/icon/" + id + "-" + std::to_string(side) + ".png";
            const auto address = entry[QLatin1StringView("artworkUrl%1").toString().arg(side)].toString();
            const auto reply = get(path);
            if (address.isEmpty()) {
                EXPECT_EQ(reply.status, 404) << path;
                continue;
            }
            EXPECT_EQ(address.toStdString(), service.origin() + path);
            EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(reply.body), "PNG").size(),
                      QSize(side, side));
            pictures.insert(reply.body);
            ++named;
        }
    }
    EXPECT_EQ(pictures.size(), named);
    EXPECT_EQ(named, 23U) << "12 apps, one of them without the large picture; a withdrawn one has none";
}

TEST_F(SampleService, RefusesOtherSellersAndWhomeverATestTellsItTo) {
    auto query = salesQuery("DAILY", "2026-08-14", "1_1");
    query[0].second = "60419373";
    EXPECT_EQ(sales(query).status, 403);
    query[0].second = access().vendorNumber;
    service.faults().rateLimitNext();
    EXPECT_EQ(sales(query).status, 429);
    EXPECT_EQ(sales(query).status, 200);
}

}  // namespace
}  // namespace vantrell::testing
