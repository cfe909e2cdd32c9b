#include "data/Reports.h"
#include "reports/ClassifyResponse.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

using response::Failure;
using response::Success;

TEST(ClassifyResponse, TellsAnswersApartByStatusAndThenByTheWordsOfTheService) {
    using Text = const std::string&;
    testing::expectCases<2>(VANTRELL_TEST_DATA "/answers.tsv", [](Text status, Text body) {
        const ReportResponse response = classifyResponse(std::stoi(status), body);
        const auto* mismatch = std::get_if<response::WrongVersion>(&response);
        return (mismatch ? mismatch->latest + ": " : "") + diagnosticText(response);
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

TEST(DiagnosticText, CountsTheLinesOfAReport) {
    EXPECT_EQ(diagnosticText(Success{"h\na\nb\n\r\nc\n"}), "OK — report received (3 data lines)");
    EXPECT_EQ(diagnosticText(Success{"\x1F\x8B\x08" + std::string(30, '\xFF')}),
              "Failed — The report is damaged: it is not a complete gzip file.");
}

}  // namespace
}  // namespace vantrell
