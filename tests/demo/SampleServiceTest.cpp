#include "ServiceFixture.h"
#include "sample/FinanceBody.h"
#include "sample/SalesBody.h"
#include "sample/SampleTotals.h"

#include <set>

#include <QJsonArray>

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

void expectAnswer(const Reply& reply, int status, const std::string& detail) {
    EXPECT_EQ(reply.status, status);
    if (status != 200) {
        EXPECT_THAT(reply.error("detail"), HasSubstr(detail));
    }
}

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
        {"week", sales(salesQuery("WEEKLY", "2026-08-16", "1_0")),
         salesBody(account, {dayOf(2026, 8, 10), dayOf(2026, 8, 16)}), 8},
        {"month", sales(salesQuery("MONTHLY", "2026-08", "1_0")), salesBody(account, august), 8},
        {"year", sales(salesQuery("YEARLY", "2021", "1_0")), salesBody(account, sample::wholeYear(2021)), 8},
        {"fiscal period", finance(financeQuery("2026-11")), financeBody(account, august), 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.reply.status, 200);
        EXPECT_EQ(c.reply.contentType, "application/a-gzip");
        EXPECT_TRUE(unpacked(c.reply.body) == c.text);
        EXPECT_EQ(c.reply.body[3], c.flags);
    }
}

TEST_F(SampleService, PublishesDaysWeeksAndMonthsForAYear) {
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
        {"5 am in summer", "DAILY", "2026-07-07", dayOf(2026, 7, 8) + 12h, 200},
        {"today", "DAILY", "2026-11-22", morning, 404, tooEarly},
        {"next year", "DAILY", "2027-11-22", morning, 404, tooEarly},
        {"a year ago", "DAILY", "2025-11-22", morning, 200},
        {"more than a year ago", "DAILY", "2025-11-20", morning, 410, tooLate},
        {"the last of the week", "WEEKLY", "2026-11-15", dayOf(2026, 11, 16) + 13h, 200},
        {"last month on the 4th", "MONTHLY", "2026-10", dayOf(2026, 11, 4) + 14h, 404, tooEarly},
        {"last month on the 5th", "MONTHLY", "2026-10", dayOf(2026, 11, 5) + 14h, 200},
        {"month a year ago", "MONTHLY", "2025-11", morning, 200},
        {"month before that", "MONTHLY", "2025-10", morning, 410, tooLate},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        clock.setNow(c.now);
        expectAnswer(sales(salesQuery(c.frequency, c.date, "")), c.status, c.detail);
    }
}

TEST_F(SampleService, PublishesYearsForTenYears) {
    const struct {
        const char* name;
        std::string year;
        Instant now;
        int status;
        std::string detail = {};
    } cases[] = {
        {"this year", "2026", morning, 404, tooEarly},
        {"last year on 5 January", "2026", dayOf(2027, 1, 5) + 14h, 404, tooEarly},
        {"last year on 6 January", "2026", dayOf(2027, 1, 6) + 14h, 200},
        {"year before the first sale", "2019", morning, 404, nothing},
        {"ten years ago", "2016", morning, 404, nothing},
        {"eleven years ago", "2015", morning, 410, tooLate},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        clock.setNow(c.now);
        expectAnswer(sales(salesQuery("YEARLY", c.year, "")), c.status, c.detail);
    }
}

TEST_F(SampleService, PublishesFiscalPeriodsForGood) {
    const struct {
        const char* name;
        std::string period;
        Instant now;
        int status;
        std::string detail = {};
    } cases[] = {
        {"after 32 days", "2027-01", dayOf(2026, 12, 2) + 14h, 404, tooEarly},
        {"after 33 days", "2027-01", dayOf(2026, 12, 3) + 14h, 200},
        {"long ago", "2021-01", morning, 200},
        {"before the first sale", "2020-01", morning, 404, nothing},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        clock.setNow(c.now);
        expectAnswer(finance(financeQuery(c.period)), c.status, c.detail);
    }
}

TEST_F(SampleService, HasDaysWithoutSales) {
    std::set<int> statuses;
    for (auto day = dayOf(2026, 7, 1); day < dayOf(2026, 10, 1); day += std::chrono::days{1}) {
        if (account.sales({day, day}).empty()) {
            const std::chrono::year_month_day date{day};
            const auto label = "2026-0" + std::to_string(static_cast<unsigned>(date.month())) + "-" +
                               (date.day() < std::chrono::day{10} ? "0" : "") +
                               std::to_string(static_cast<unsigned>(date.day()));
            const auto reply = sales(salesQuery("DAILY", label, ""));
            EXPECT_EQ(reply.error("detail"), nothing);
            statuses.insert(reply.status);
        }
    }
    EXPECT_EQ(statuses, std::set<int>{404});
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
        {"most months", "MONTHLY", "2026-04", "1_0", "1_1"},
        {"some months", "MONTHLY", "2026-03", "1_1", "1_0"},
        {"most years", "YEARLY", "2025", "1_0", "1_1"},
        {"some years", "YEARLY", "2024", "1_1", "1_0"},
        {"not published yet", "DAILY", "2026-12-11", "1_0", "1_1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto refused = sales(salesQuery(c.frequency, c.date, c.wrong));
        EXPECT_EQ(refused.status, 400);
        EXPECT_THAT(refused.error("detail"),
                    HasSubstr("The latest version for this report is " + c.right + "."));
        EXPECT_NE(sales(salesQuery(c.frequency, c.date, c.right)).status, 400);
    }
}

TEST_F(SampleService, RefusesFiltersThatMakeNoSense) {
    const struct {
        std::string filter;
        std::string value;  ///< empty: the filter is left out
        int status;
        std::string detail;
    } cases[] = {
        {"filter[vendorNumber]", "", 400, "is required"},
        {"filter[vendorNumber]", "60419373", 403, "Invalid vendor number"},
        {"filter[reportType]", "INSTALLS", 400, "'INSTALLS' is not a valid value"},
        {"filter[reportSubType]", "DETAILED", 400, "is not a valid value"},
        {"filter[frequency]", "", 400, "is required"},
        {"filter[frequency]", "daily", 400, "is not a valid value"},
        {"filter[reportDate]", "2026-02-29", 400, "'2026-02-29' is not a valid value"},
        {"filter[reportDate]", "2026-08", 400, "is not a valid value"},
        {"filter[reportDate]", "2026-8-14", 400, "is not a valid value"},
        {"filter[reportDate]", "2026/08/14", 400, "is not a valid value"},
        {"filter[reportDate]", "\"quoted\"", 400, "'\"quoted\"' is not a valid value"},
        {"filter[version]", "1.0", 400, "'1.0' is not a valid value"},
        {"filter[version]", "_1", 400, "is not a valid value"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.filter + " " + c.value);
        auto query = salesQuery("DAILY", "2026-08-14", "1_1");
        std::erase_if(query, [&c](const auto& item) { return item.first == c.filter; });
        if (!c.value.empty()) {
            query.emplace_back(c.filter, c.value);
        }
        const auto reply = sales(query);
        EXPECT_EQ(reply.status, c.status);
        EXPECT_THAT(reply.error("detail"), HasSubstr(c.detail));
    }
    for (const auto& [frequency, date] :
         {std::pair{"WEEKLY", "2026-08-15"}, {"MONTHLY", "2026-13"}, {"YEARLY", "26"}}) {
        EXPECT_EQ(sales(salesQuery(frequency, date, "1_0")).status, 400) << date;
    }
    EXPECT_EQ(finance(financeQuery("2026-00")).status, 400);
}

TEST_F(SampleService, GivesRatesForEveryCurrencyItPaysIn) {
    const auto answer = get("/v6/latest/USD").json();
    const auto rates = answer.value(QLatin1String("rates")).toObject();
    EXPECT_EQ(answer.value(QLatin1String("result")).toString(), QLatin1String("success"));
    EXPECT_EQ(rates.value(QLatin1String("USD")).toDouble(), 1.0);
    const auto totals = salesTotals(account, wholeMonth(std::chrono::year{2026} / 8));
    EXPECT_EQ(totals.proceeds.size(), 25U);
    for (const auto& [currency, amount] : totals.proceeds) {
        EXPECT_GT(rates.value(QString::fromStdString(currency)).toDouble(), 0.0) << currency;
    }
    EXPECT_GT(rates.size(), 40);
}

TEST_F(SampleService, LooksUpTheAppsThatAreSoldInACountry) {
    const struct {
        const char* name;
        Query query;
        std::set<qint64> found;
    } cases[] = {
        {"app", {{"id", "9900000101"}, {"country", "DE"}}, {9900000101}},
        {"several, in no order",
         {{"id", "9900000106,9900000101"}, {"country", "DE"}},
         {9900000101, 9900000106}},
        {"not sold here", {{"id", "9900000110"}, {"country", "DE"}}, {}},
        {"sold at home", {{"id", "9900000110"}, {"country", "jp"}}, {9900000110}},
        {"sold in the United States", {{"id", "9900000110"}, {"country", "US"}}, {9900000110}},
        {"no country", {{"id", "9900000110"}}, {9900000110}},
        {"withdrawn", {{"id", "9900000107"}, {"country", "US"}}, {}},
        {"in-app product", {{"id", "9900001001"}, {"country", "US"}}, {}},
        {"nothing asked", {}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::set<qint64> found;
        for (const auto& entry : get("/lookup", c.query).json().value(QLatin1String("results")).toArray()) {
            found.insert(entry.toObject().value(QLatin1String("trackId")).toInteger());
            const auto picture =
                entry.toObject().value(QLatin1String("artworkUrl60")).toString().toStdString();
            EXPECT_TRUE(picture.starts_with(service.origin() + "/icon/")) << picture;
        }
        EXPECT_EQ(found, c.found);
    }
}

TEST_F(SampleService, HasNothingElseToGive) {
    for (const auto* const path :
         {"/", "/vantrell/updates.txt", "/vantrell/vantrell.zip", "/v1/apps", "/lookup/"}) {
        EXPECT_EQ(get(path).status, 404) << path;
    }
    EXPECT_EQ(send("POST", "/v1/salesReports", {}, freshToken()).status, 405);
}

TEST_F(SampleService, GivesTheAnswersThatATestHasOrdered) {
    service.faults().rateLimitNext();
    service.faults().answerNext(503, "<html>busy</html>");
    const auto query = salesQuery("DAILY", "2026-08-14", "1_1");
    const auto limited = sales(query);
    EXPECT_EQ(limited.status, 429);
    EXPECT_THAT(limited.error("detail"), HasSubstr("too many requests"));
    EXPECT_EQ(get("/v6/latest/USD").body, "<html>busy</html>");
    EXPECT_EQ(sales(query).status, 200);
}

TEST_F(SampleService, RemembersWhatItWasAsked) {
    (void)sales({{"filter[reportDate]", "2026-08-14"}});
    (void)get("/lookup", {{"id", "1,2"}});
    const auto& requests = service.log().requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].status, 400);
    EXPECT_TRUE(requests[0].hasAuthorization);
    EXPECT_EQ(requests[1].target, "/lookup?id=1,2");
    EXPECT_FALSE(requests[1].hasAuthorization);
    EXPECT_EQ(service.log().count("/v1/salesReports"), 1U);
}

}  // namespace
}  // namespace vantrell::testing
