#include "data/Reports.h"
#include "reports/ClassifyResponse.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using response::AuthFailure;
using response::Failure;
using response::Gone;
using response::NoSales;
using response::NotYetAvailable;
using response::RateLimited;
using response::Success;
using response::WrongVersion;

std::string envelope(const std::string& detail) {
    return R"({"errors":[{"status":"400","code":"PARAMETER_ERROR","title":"An error.","detail":")" + detail +
           R"("}]})";
}

std::string nested(std::size_t depth) {
    return R"({"errors":)" + std::string(depth, '[') + std::string(depth, ']') + "}";
}

struct Answer {
    const char* name;
    int status;
    std::string body;
    ReportResponse expected;
};

void expectAll(std::initializer_list<Answer> answers) {
    for (const auto& [name, status, body, expected] : answers) {
        const ReportResponse actual = classifyResponse(status, body);
        EXPECT_TRUE(actual == expected) << name << ": " << diagnosticText(actual).substr(0, 400);
    }
}

TEST(ClassifyResponse, TellsTheServiceOwnWordingsApart) {
    expectAll({
        {"no sales", 404, envelope("There were no sales for the date specified."),
         NoSales{"HTTP 404: There were no sales for the date specified."}},
        {"not yet", 404,
         envelope("Report is not available yet. Daily reports for the Americas are available by 5 am Pacific "
                  "Time; Japan, Australia, and New Zealand by 5 am Japan Standard Time."),
         NotYetAvailable{
             "HTTP 404: Report is not available yet. Daily reports for the Americas are available by 5 am "
             "Pacific Time; Japan, Australia, and New Zealand by 5 am Japan Standard Time."}},
        {"too old", 410, envelope("Report is no longer available."),
         Gone{"HTTP 410: Report is no longer available."}},
        {"version", 400, envelope("The latest version for this report is 1_0."),
         WrongVersion{"1_0", "HTTP 400: The latest version for this report is 1_0."}},
        {"too many", 429,
         envelope("We've received too many requests for this API. Please wait and try again."),
         RateLimited{"HTTP 429: We've received too many requests for this API. Please wait and try again."}},
        {"bad token", 401, envelope("Provide a properly configured and signed bearer token."),
         AuthFailure{"HTTP 401: Provide a properly configured and signed bearer token."}},
        {"wrong role", 403, envelope("This request is forbidden. There were no sales."),
         AuthFailure{"HTTP 403: This request is forbidden. There were no sales."}},
    });
}

TEST(ClassifyResponse, DecidesByStatusAndThenByWordsInTheirOrder) {
    expectAll({
        {"no words on 404", 404, envelope("Nope."), Failure{"HTTP 404: Nope."}},
        {"no words on 410", 410, envelope("Nope."), Gone{"HTTP 410: Nope."}},
        {"gone before no sales", 404, "no sales, no longer available",
         Gone{"HTTP 404: no sales, no longer available"}},
        {"not yet before no sales", 410, "no sales: not yet available",
         NotYetAvailable{"HTTP 410: no sales: not yet available"}},
        {"version in capitals", 400, "VERSION 12_34_5!", WrongVersion{"12_34", "HTTP 400: VERSION 12_34_5!"}},
        {"first of two versions", 400, "version _1 2_ 1_1 or 1_0",
         WrongVersion{"1_1", "HTTP 400: version _1 2_ 1_1 or 1_0"}},
        {"version without a number", 400, "the version is wrong", Failure{"HTTP 400: the version is wrong"}},
        {"a number without version", 400, "use 1_0", Failure{"HTTP 400: use 1_0"}},
        {"no sales on 400", 400, "no sales", Failure{"HTTP 400: no sales"}},
        {"version on 404", 404, "version 1_0", Failure{"HTTP 404: version 1_0"}},
        {"a redirect", 302, "no longer available", Failure{"HTTP 302: no longer available"}},
        {"no content", 204, "", Failure{"HTTP 204: "}},
    });
}

TEST(ClassifyResponse, TakesTheWordsFromTheErrorEnvelope) {
    expectAll({
        {"title alone", 500, R"({"errors":[{"title":"A title"}]})", Failure{"HTTP 500: A title"}},
        {"several", 500, R"({"errors":[{"detail":"One"},{"id":7},{"title":"Two"}]})",
         Failure{"HTTP 500: One Two"}},
        {"escapes", 500, R"({"errors":[{"detail":"\u00e9\n\ud83d\ude00"}]})", Failure{"HTTP 500: é\n😀"}},
    });
}

TEST(ClassifyResponse, AnyOtherBodyIsQuotedByItsFirst300Bytes) {
    const std::string half = std::string(299, 'x') + "é";
    const std::string megabyte = R"({"error":")" + std::string(1U << 20U, '1') + R"("})";
    for (const std::string_view body :
         {"no sales", R"({"errors":null})", R"({"errors":{"detail":"x"}})", R"({"errors":["x"]})",
          R"({"errors":[{"detail":7}]})", R"({"errors":[{"detail":"x"}])", R"(["errors"])"}) {
        EXPECT_TRUE(classifyResponse(500, body) == ReportResponse(Failure{"HTTP 500: " + std::string(body)}))
            << body;
    }
    expectAll({
        {"cut inside a letter", 502, half, Failure{"HTTP 502: " + half.substr(0, 299) + "\uFFFD"}},
        {"not UTF-8", 502, "\xFF\xFE<", Failure{"HTTP 502: \uFFFD\uFFFD<"}},
        {"megabyte", 400, megabyte, Failure{"HTTP 400: " + megabyte.substr(0, 300)}},
        {"words past the quote", 404, std::string(300, ' ') + "no sales",
         Failure{"HTTP 404: " + std::string(300, ' ')}},
        {"a detail of a megabyte", 500, R"({"errors":[{"detail":")" + std::string(1U << 20U, '1') + R"("}]})",
         Failure{("HTTP 500: " + std::string(1U << 20U, '1')).substr(0, mostMessageBytes)}},
        {"bottomless nesting", 502, nested(400'000), Failure{"HTTP 502: " + nested(400'000).substr(0, 300)}},
    });
}

TEST(DiagnosticText, SaysEachOutcomeInOneLine) {
    const struct {
        const char* name;
        ReportResponse response;
        std::string text;
    } cases[] = {
        {"header and three lines", Success{"h\na\nb\n\r\nc\n"}, "OK — report received (3 data lines)"},
        {"damaged", Success{"\x1F\x8B\x08" + std::string(30, '\xFF')},
         "Failed — The report is damaged: it is not a complete gzip file."},
        {"pending", NotYetAvailable{"m"}, "Not published yet — m"},
        {"none", NoSales{"m"}, "No sales — m"},
        {"gone", Gone{"m"}, "Past retention — m"},
        {"version", WrongVersion{"1_0", "m"}, "Version mismatch — m"},
        {"key", AuthFailure{"m"},
         "Authentication failed — m. Check that the key was created under Users and Access → Integrations → "
         "App Store Connect API with the Finance role (an In-App Purchase key will not work)."},
        {"limit", RateLimited{"m"}, "Rate limited — m"},
        {"other", Failure{"m"}, "Failed — m"},
    };
    for (const auto& [name, response, text] : cases) {
        EXPECT_EQ(diagnosticText(response), text) << name;
    }
}

}  // namespace
}  // namespace vantrell
