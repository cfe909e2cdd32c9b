#include "base/Decimal.h"
#include "testing/Cases.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace vantrell {
namespace {

static_assert(!std::is_constructible_v<Decimal, double> && !std::is_convertible_v<float, Decimal>);
static_assert(!std::is_convertible_v<Decimal, double>);

Decimal number(std::string_view text) {
    return Decimal::parse(text).value();
}

TEST(Decimal, ReadsPlainAndScientificTextAndNothingElse) {
    testing::expectCases<1>(VANTRELL_TEST_DATA "/decimals.tsv", [](const std::string& text) {
        const auto value = Decimal::parse(text);
        return value ? value->text() : "none";
    });
}

TEST(Decimal, TextsOfAnyLengthAreReadInOnePass) {
    const std::string zeros(8'000'000, '0');
    EXPECT_EQ(number("0." + zeros + "1e8000001").text(), "1");
    EXPECT_FALSE(Decimal::parse("1" + zeros));
}

TEST(Decimal, RoundsOnceAndOnlyWhereThirtyEightDigitsDoNotSuffice) {
    const auto power = Decimal::scaled(1, 40);
    EXPECT_EQ((power - Decimal(60)).text(), std::string(38, '9') + "00");
    EXPECT_EQ(power - Decimal(50), power) << "half of the last digit";
    EXPECT_EQ(power - number("1e-900"), power);
    EXPECT_EQ(number("1e37") - number("0.1") - number("1e37"), number("-0.1"));
    EXPECT_EQ((Decimal(-2) / Decimal(3)).text(), "-0." + std::string(37, '6') + "7");
}

TEST(Decimal, SizesBeyondTheRangeStayAtItsEnds) {
    const auto large = Decimal::scaled(1, 6144);
    const auto largest = large * Decimal(10);
    EXPECT_EQ(largest.text(), std::string(38, '9') + std::string(6107, '0'));
    EXPECT_LT(large, largest);
    EXPECT_LT(-large, number("-1e-900"));
    EXPECT_EQ(large * large, largest);
    EXPECT_EQ(-largest - largest, -largest);
    EXPECT_EQ(Decimal(-1) / Decimal::scaled(1, -6144) * Decimal(-10), largest);
    EXPECT_FALSE(Decimal::scaled(15, -6145).isZero());
    EXPECT_EQ(Decimal::scaled(9, -6145), Decimal());
    EXPECT_EQ(Decimal::scaled(1, std::numeric_limits<int>::max()), largest);
    EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()).text(), "-9223372036854775808");
}

TEST(Decimal, DoublesComeAndGoByTheirShortestText) {
    constexpr auto most = std::numeric_limits<double>::max();
    EXPECT_EQ(Decimal::fromShortestText(1.3641)->text(), "1.3641");
    EXPECT_EQ(Decimal::fromShortestText(5e-324), number("5e-324"));
    EXPECT_EQ(Decimal::fromShortestText(most)->toDouble(), most);
    EXPECT_FALSE(Decimal::fromShortestText(std::nan("")));
    EXPECT_FALSE(Decimal::fromShortestText(-std::numeric_limits<double>::infinity()));
    EXPECT_EQ(Decimal::scaled(-1, 400).toDouble(), -most);
}

}  // namespace
}  // namespace vantrell
