#include "currency/RatesFetcher.h"
#include "testing/Cases.h"
#include "testing/ScriptedHttp.h"

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
    auto bodies = testing::linesOfCases(VANTRELL_TEST_DATA "/no-rates.txt", 1);
    bodies.push_back({""});
    bodies.push_back({std::string(100'000, '[')});
    for (const auto& body : bodies) {
        const auto answer = RatesFetcher::parse(body.front());
        const auto* error = std::get_if<RatesError>(&answer);
        ASSERT_NE(error, nullptr) << body.front().substr(0, 100);
        EXPECT_FALSE(error->description.empty());
    }
}

}  // namespace
}  // namespace vantrell
