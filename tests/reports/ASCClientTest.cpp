#include "base/Lifetime.h"
#include "keys/KeyPair.h"
#include "reports/ASCClient.h"
#include "testing/ManualClock.h"
#include "testing/ScriptedHttp.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;

constexpr const char* versionRefused =
    R"({"errors":[{"detail":"The latest version for this report is 1_0."}]})";

class ASCClientTest : public ::testing::Test {
  protected:
    ASCClientTest() { client.setCredentials(credentials); }

    ReportResponse sales(ReportFrequency frequency, std::string date,
                         std::optional<std::string> version = std::nullopt, std::stop_token cancel = {}) {
        return QCoro::waitFor(
            client.fetchSales(frequency, std::move(date), std::move(version), std::move(cancel)));
    }

    ReportResponse dailySales() { return sales(ReportFrequency::daily, "2026-11-21"); }

    /// The values of one query item over all requests, in order.
    std::vector<std::string> asked(const std::string& item) const {
        std::vector<std::string> values;
        for (const auto& request : http.requests) {
            const std::string name = "filter%5B" + item + "%5D=";
            const auto start = request.url.find(name) + name.size();
            values.push_back(request.url.substr(start, request.url.find('&', start) - start));
        }
        return values;
    }

    std::string bearer(std::size_t request) const { return http.requests.at(request).headers.at(1).value; }

    testing::ScriptedHttp http;
    testing::ManualClock clock;
    ASCClient client{http, clock, "https://reports.example"};
    APICredentials credentials{"issuer", "key", generateKeyPair().privatePEM, "60419372"};
};

TEST_F(ASCClientTest, AsksForSalesWithAllItemsInOrder) {
    http.answer(200, "Provider\n");
    EXPECT_TRUE(dailySales() == ReportResponse(response::Success{"Provider\n"}));
    ASSERT_EQ(http.requests.size(), 1U);
    HttpRequest expected;
    expected.url =
        "https://reports.example/v1/"
        "salesReports?filter%5BvendorNumber%5D=60419372&filter%5BreportType%5D=SALES"
        "&filter%5BreportSubType%5D=SUMMARY&filter%5Bfrequency%5D=DAILY&filter%5BreportDate%5D=2026-11-21"
        "&filter%5Bversion%5D=1_1";
    expected.headers = {{"Accept", "application/a-gzip, application/json"},
                        {"Authorization", "Bearer " + client.currentToken()}};
    expected.redirects = Redirects::refuse;
    expected.idleTimeout = 90s;
    expected.totalTimeout = 15min;
    expected.maxBodyBytes = 67'108'864;
    expected.maxErrorBodyBytes = 1'048'576;
    expected.wantedHeaders = {"X-Rate-Limit", "Date"};
    EXPECT_TRUE(http.requests[0] == expected) << http.requests[0].url;
}

TEST_F(ASCClientTest, EachFrequencyHasItsOwnFilterAndUsualVersionAndFinanceAllRegions) {
    http.respond = [](const HttpRequest&) { return HttpResponse{200, ""}; };
    using enum ReportFrequency;
    for (const auto frequency : {daily, weekly, monthly, yearly}) {
        static_cast<void>(sales(frequency, "2026"));
    }
    EXPECT_EQ(asked("frequency"), (std::vector<std::string>{"DAILY", "WEEKLY", "MONTHLY", "YEARLY"}));
    EXPECT_EQ(asked("version"), (std::vector<std::string>{"1_1", "1_0", "1_0", "1_0"}));
    static_cast<void>(sales(daily, "1&b=2+ \u00E9~"));
    EXPECT_EQ(asked("reportDate").back(), "1%26b%3D2%2B%20%C3%A9~");
    EXPECT_TRUE(QCoro::waitFor(client.fetchFinance("2026-11", {})) == ReportResponse(response::Success{}));
    EXPECT_EQ(http.requests.back().url,
              "https://reports.example/v1/financeReports?filter%5BvendorNumber%5D=60419372"
              "&filter%5BreportType%5D=FINANCIAL&filter%5BregionCode%5D=ZZ&filter%5BreportDate%5D=2026-11");
}

TEST_F(ASCClientTest, ARefusedVersionIsReplacedByTheOneThatTheServiceNames) {
    http.answer(400, versionRefused);
    http.answer(200, "text");
    EXPECT_TRUE(dailySales() == ReportResponse(response::Success{"text"}));
    http.answer(200, "text");
    static_cast<void>(dailySales());
    EXPECT_EQ(asked("version"), (std::vector<std::string>{"1_1", "1_0", "1_0"})) << "for the rest of a run";
    client.beginRun();
    http.answer(400, "version 1_1, please");
    static_cast<void>(dailySales());
    EXPECT_EQ(asked("version").size(), 4U) << "what was just refused is not asked for again";
    EXPECT_EQ(asked("version").back(), "1_1");
    EXPECT_EQ(asked("reportDate"), (std::vector<std::string>(4, "2026-11-21")));
}

TEST_F(ASCClientTest, NeitherAThirdAttemptIsMadeNorAVersionReplacedThatTheCallerNames) {
    http.answer(400, versionRefused);
    http.answer(400, "version 1_2, please");
    EXPECT_TRUE(dailySales() ==
                ReportResponse(response::WrongVersion{"1_2", "HTTP 400: version 1_2, please"}));
    http.answer(400, versionRefused);
    EXPECT_TRUE(
        std::holds_alternative<response::WrongVersion>(sales(ReportFrequency::daily, "2026-11-21", "1_3")));
    EXPECT_EQ(asked("version"), (std::vector<std::string>{"1_1", "1_0", "1_3"}));
}

TEST_F(ASCClientTest, TellsHowManyRequestsAreLeftAndWhetherAClockIsWrong) {
    const struct {
        const char* limit;
        const char* date;
        std::optional<int> left;
        std::optional<std::chrono::minutes> ahead;
    } cases[] = {
        {"user-hour-lim:3500;user-hour-rem:500;", "Sun, 22 Nov 2026 11:58:00 GMT", 500, {}},
        {"user-hour-rem:0", "Sun, 22 Nov 2026 11:57:59 GMT", 0, 2min},
        {"user-hour-lim:3500", "Sun, 22 Nov 2026 13:00:00 GMT", {}, -60min},
        {"user-hour-rem:99999999999;", "yesterday", {}, {}},
        {"user-hour-rem:-1;", "", {}, {}},
    };
    for (const auto& [limit, date, left, ahead] : cases) {
        http.answers = {HttpResponse{401, "no", {{"X-Rate-Limit", limit}, {"Date", date}}}};
        EXPECT_TRUE(dailySales() == ReportResponse(response::AuthFailure{"HTTP 401: no", ahead})) << date;
        EXPECT_EQ(client.notes().requestsLeft, left) << limit;
    }
    client.beginRun();
    EXPECT_EQ(client.notes().requestsLeft, std::nullopt);
}

TEST_F(ASCClientTest, WhatAnErrorEchoesOfTheCredentialsIsMasked) {
    client.setCredentials({"3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "7QK2MZ8T5W", credentials.privateKeyPEM,
                           credentials.vendorNumber});
    const std::string token = client.currentToken();
    const std::string keyLine = credentials.privateKeyPEM.substr(28, 64);
    std::string escaped = token;
    escaped.replace(0, 1, "\\u0065");
    const struct {
        const char* name;
        std::string body;
        std::string message;
    } cases[] = {
        {"in an envelope", R"({"errors":[{"detail":"Bearer )" + token + R"( of 60419372"}]})",
         "HTTP 500: Bearer ••• of •••"},
        {"escaped", R"({"errors":[{"detail":")" + escaped + R"("}]})", "HTTP 500: ••••••.•••"},
        {"twice", token + " " + token, "HTTP 500: ••• •••"},
        {"cut off by the service", "got " + token.substr(0, 40) + "...", "HTTP 500: got •••..."},
        {"cut off by us", std::string(280, '-') + token, "HTTP 500: " + std::string(280, '-') + "•••"},
        {"its last part", token.substr(token.rfind('.') + 1), "HTTP 500: •••"},
        {"IDs", "7QK2MZ8T5W/3f7a91c2-5d04-4be8-9a16-c07e2d8b4f15", "HTTP 500: •••/•••"},
        {"the key", keyLine, "HTTP 500: •••"},
    };
    for (const auto& [name, body, message] : cases) {
        http.answer(500, body);
        EXPECT_TRUE(dailySales() == ReportResponse(response::Failure{message})) << name;
    }
}

TEST_F(ASCClientTest, AnUnreadableKeyIsReportedWithoutTraffic) {
    credentials.privateKeyPEM = "<html>";
    client.setCredentials(credentials);
    const response::AuthFailure refused{
        "The .p8 private key could not be read: the file is not valid PEM or base64"};
    EXPECT_TRUE(dailySales() == ReportResponse(refused));
    EXPECT_TRUE(QCoro::waitFor(client.fetchFinance("2026-11", {})) == ReportResponse(refused));
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(ASCClientTest, AnOriginThatIsNoneIsReportedWithoutTraffic) {
    for (const char* const origin : {"", "reports.example", "ftp://reports.example",
                                     "https://user@reports.example", "https://reports.example/v1"}) {
        ASCClient lost(http, clock, origin);
        lost.setCredentials(credentials);
        EXPECT_TRUE(QCoro::waitFor(lost.fetchFinance("2026-11", {})) ==
                    ReportResponse(response::Failure{"could not build request URL"}))
            << origin;
    }
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(ASCClientTest, ATokenIsUsedForLessThanNineteenMinutesWhateverTheWallClockDoes) {
    const std::string first = client.currentToken();
    clock.advance(10min);
    clock.setNow(clock.now() - 24h);
    clock.advance(8min + 59s);
    EXPECT_EQ(client.currentToken(), first);
    clock.advance(1s);
    const std::string second = client.currentToken();
    EXPECT_NE(second, first);
    clock.setNow(clock.now() + 18min + 59s);
    EXPECT_EQ(client.currentToken(), second);
    clock.setNow(clock.now() + 1s);
    EXPECT_NE(client.currentToken(), second) << "by the wall clock it has one minute left";
}

TEST_F(ASCClientTest, NewCredentialsNeverTravelWithAnOldToken) {
    http.answer(400, versionRefused);
    http.answer(200, "");
    http.whileWaiting = [this](const HttpRequest&) {
        credentials.vendorNumber += "0";
        credentials.privateKeyPEM = generateKeyPair().privatePEM;
        client.setCredentials(credentials);
    };
    static_cast<void>(dailySales());
    EXPECT_EQ(asked("vendorNumber"), (std::vector<std::string>{"60419372", "604193720"}));
    EXPECT_NE(bearer(0), bearer(1));
}

TEST_F(ASCClientTest, WhatIsNoHttpIsAFailure) {
    http.answers = {HttpResponse{std::nullopt, "220 ftp"}};
    EXPECT_TRUE(dailySales() == ReportResponse(response::Failure{"no HTTP response"}));
}

TEST_F(ASCClientTest, CancellingEndsTheFetchAsAFailure) {
    Lifetime lifetime;
    http.whileWaiting = [&lifetime](const HttpRequest&) { lifetime.end(); };
    EXPECT_TRUE(sales(ReportFrequency::daily, "2026-11-21", std::nullopt, lifetime.token()) ==
                ReportResponse(response::Failure{"The request was cancelled.",
                                                 HttpFailure{HttpFailure::Kind::cancelled}}));
}

}  // namespace
}  // namespace vantrell
