#include "reports/ReportValues.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

constexpr auto highest = std::numeric_limits<std::int64_t>::max();
constexpr auto lowest = std::numeric_limits<std::int64_t>::min();

TEST(ReportDate, IsNoonUtcOfMonthDayYear) {
    const struct {
        std::string_view text;
        sys_days day;
    } cases[] = {
        {"08/14/2026", 2026y / 8 / 14},  {"8/4/2026", 2026y / 8 / 4},    {"01/01/2001", 2001y / 1 / 1},
        {"12/31/2199", 2199y / 12 / 31}, {"02/29/2024", 2024y / 2 / 29}, {"02/30/2024", 2024y / 3 / 1},
        {"02/29/2023", 2023y / 3 / 1},   {"02/31/2026", 2026y / 3 / 3},  {"04/31/2026", 2026y / 5 / 1},
        {"/8/4/2026//", 2026y / 8 / 4},  {"+8/+4/+2026", 2026y / 8 / 4}, {"0008/004/02026", 2026y / 8 / 4},
    };
    for (const auto& [text, day] : cases) {
        EXPECT_EQ(parseReportDate(text), day + 12h) << text;
    }
}

TEST(ReportDate, AnythingElseIsNone) {
    for (const std::string_view text :
         {"00/14/2026", "13/14/2026", "08/00/2026", "08/32/2026", "08/14/2000", "08/14/2200", "2026/08/14",
          "2026-08-14", "8//14/2026", " 8/14/2026", "8/ 14/2026", "-8/14/2026", "8.0/14/2026", "8/14/2026/1",
          "8/+/2026", "08/14", "///", "Total"}) {
        EXPECT_EQ(parseReportDate(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseReportDate(""), std::nullopt);
    EXPECT_EQ(parseReportDate("\u0668/14/2026"), std::nullopt) << "a digit of another script";
    EXPECT_EQ(parseReportDate("8/14/99999999999999999999"), std::nullopt);
}

TEST(ReportCount, ReadsCountsWithoutTheirFractionsAndAnythingElseAsZero) {
    const struct {
        std::string_view text;
        std::int64_t value;
    } cases[] = {{"-3", -3},     {"+5", 5},     {"1,200", 1'200}, {",1,2,", 12},    {" \u00A042\t", 42},
                 {"-12.7", -12}, {"+.9", 0},    {".70", 0},       {"1.5e3", 1'500}, {"", 0},
                 {" ", 0},       {"-", 0},      {"--1", 0},       {"-+1", 0},       {"1 2", 0},
                 {"12a", 0},     {"1e", 0},     {"0x10", 0},      {"e5", 0},        {"inf", 0},
                 {"nan", 0},     {"1e-400", 0}, {"\u0661", 0}};
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(parseReportCount(text).value, value) << text;
        EXPECT_TRUE(parseReportCount(text).fits) << text;
    }
}

TEST(ReportCount, KeepsEveryNumberOfSixtyFourBitsAndTheNearestToAnyOther) {
    const struct {
        std::string text;
        std::int64_t value;
        bool fits;
    } cases[] = {{"9223372036854775807", highest, true},
                 {"-9223372036854775808.0", lowest, true},
                 {"9223372036854774784.0", 9'223'372'036'854'774'784, true},
                 {"9,223,372,036,854,775,808", highest, false},
                 {"-9223372036854777856", lowest, false},
                 {"1e400", highest, false},
                 {std::string(400, '9'), highest, false}};
    for (const auto& [text, value, fits] : cases) {
        EXPECT_EQ(parseReportCount(text).value, value) << text;
        EXPECT_EQ(parseReportCount(text).fits, fits) << text;
    }
}

TEST(ReportDecimal, IsExactAndKnowsOnlyThePoint) {
    const struct {
        std::string text;
        std::string value;
    } cases[] = {{".70", "0.7"},
                 {"1,234,567.89", "1234567.89"},
                 {" 0.10 ", "0.1"},
                 {"0.00", "0"},
                 {"1.5e3", "1500"},
                 {"0.1234567890123456789012345678901234567", "0.1234567890123456789012345678901234567"},
                 {std::string(400, '0') + "1", "1"}};
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(parseReportDecimal(text).text(), value) << text;
    }
    for (const std::string_view text : {"", " ", ",", "abc", "--1", "1.2.3", "1e999999999", "nan", "1 000"}) {
        EXPECT_TRUE(parseReportDecimal(text).isZero()) << text;
    }
}

TEST(AppleIdentifier, IsDigitsOnly) {
    EXPECT_EQ(parseAppleIdentifier("1234567890"), 1'234'567'890);
    EXPECT_EQ(parseAppleIdentifier("9223372036854775807"), highest);
    EXPECT_EQ(parseAppleIdentifier("+5"), 5);
    EXPECT_EQ(parseAppleIdentifier("-5"), -5);
    for (const std::string_view text : {"", "1,200", "12.0", "9223372036854775808", "id123", "--1", "1e3"}) {
        EXPECT_EQ(parseAppleIdentifier(text), 0) << text;
    }
}

}  // namespace
}  // namespace vantrell
