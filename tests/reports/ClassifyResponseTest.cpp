#include "base/Overloaded.h"
#include "data/Reports.h"
#include "reports/ClassifyResponse.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

using response::Failure;

/// Which answer it is, and with which message.
std::string told(const ReportResponse& response) {
    constexpr const char* names[] = {"success", "not yet", "no sales", "gone",
                                     "",        "refused", "limited",  "failure"};
    const auto* mismatch = std::get_if<response::WrongVersion>(&response);
    return (mismatch ? "version " + mismatch->latest : names[response.index()]) + ": " +
           std::visit(Overloaded{[](const response::Success& success) { return success.body; },
                                 [](const response::WrongVersion& wrong) { return wrong.detail; },
                                 [](const auto& other) { return other.message; }},
                      response);
}

TEST(ClassifyResponse, TellsAnswersApartByStatusAndThenByTheWordsOfTheService) {
    using Text = const std::string&;
    testing::expectCases<2>(VANTRELL_TEST_DATA "/answers.tsv", [](Text status, Text body) {
        return told(classifyResponse(std::stoi(status), body));
    });
}

TEST(ClassifyResponse, BearsBodiesOfAnySize) {
    const std::string megabyte(1U << 20U, '1');
    const std::string nested = R"({"errors":)" + std::string(400'000, '[') + std::string(400'000, ']') + "}";
    const std::pair<std::string, std::string> cases[] = {
        {megabyte, "HTTP 500: " + megabyte.substr(0, 300)},
        {nested, "HTTP 500: " + nested.substr(0, 300)},
        {R"({"errors":[{"detail":")" + megabyte + R"("}]})",
         ("HTTP 500: " + megabyte).substr(0, mostMessageBytes)},
    };
    for (const auto& [body, message] : cases) {
        EXPECT_TRUE(classifyResponse(500, body) == ReportResponse(Failure{message})) << body.substr(0, 40);
    }
}

}  // namespace
}  // namespace vantrell
