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
    const std::string body = R"({"errors":[{"detail":")" + megabyte + R"("}]})";
    const std::string message = ("HTTP 500: " + megabyte).substr(0, mostMessageBytes);
    EXPECT_TRUE(classifyResponse(500, body) == ReportResponse(Failure{message}));
    EXPECT_TRUE(classifyResponse(500, megabyte) == ReportResponse(Failure{message.substr(0, 310)}));
}

}  // namespace
}  // namespace vantrell
