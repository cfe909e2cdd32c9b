#include "currency/RatesFetcher.h"
#include "testing/ScriptedHttp.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(RatesFetcher, AsksOnePlaceWithoutCredentialsAndReadsTheBodyWhateverTheStatus) {
    testing::ScriptedHttp http;
    http.answer(503, R"({"result":"success","base_code":"USD","rates":{"USD":1,"EUR":0.92},"terms":null})");
    const auto answer = QCoro::waitFor(RatesFetcher::fetch(http, "https://rates.test", {}));
    EXPECT_EQ(std::get<Rates>(answer), (Rates{{"EUR", 0.92}, {"USD", 1}}));
    ASSERT_EQ(http.requests.size(), 1U);
    EXPECT_EQ(http.requests[0].url, "https://rates.test/v6/latest/USD");
    for (const HttpHeader& header : http.requests[0].headers) {
        EXPECT_NE(header.name, "Authorization");
    }
}

TEST(RatesFetcher, GivesAReasonForEveryAnswerWithoutRates) {
    struct Case {
        const char* name;
        std::string body;
    };
    const std::vector<Case> cases = {
        {"empty", ""},
        {"HTML", "<html></html>"},
        {"no object", "[1]"},
        {"no rates", R"({"result":"success"})"},
        {"no result", R"({"rates":{"USD":1}})"},
        {"rates are a list", R"({"result":"success","rates":[1]})"},
        {"a rate is a text", R"({"result":"success","rates":{"USD":1,"EUR":"0.9"}})"},
        {"a rate is nothing", R"({"result":"success","rates":{"USD":null}})"},
        {"no success", R"({"result":"Success","rates":{"USD":1}})"},
        {"none at all", R"({"result":"success","rates":{}})"},
        {"invalid UTF-8", "{\"result\":\"success\",\"rates\":{\"\xff\":1}}"},
        {"nested for ever", std::string(100000, '[')},
        {"cut short", R"({"result":"success","rates":{"USD":1)"},
    };
    for (const Case& row : cases) {
        const auto answer = RatesFetcher::parse(row.body);
        const auto* error = std::get_if<RatesError>(&answer);
        ASSERT_NE(error, nullptr) << row.name;
        EXPECT_FALSE(error->description.empty()) << row.name;
    }
}

}  // namespace
}  // namespace vantrell
