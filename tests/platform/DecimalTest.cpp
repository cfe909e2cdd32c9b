#include "platform/Decimal.h"

#include <cmath>
#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

static_assert(!std::is_constructible_v<Decimal, double> && !std::is_convertible_v<float, Decimal>);
static_assert(!std::is_convertible_v<Decimal, double>);
static_assert(Decimal(1000) == Decimal(1000) && !Decimal(7).isZero());

Decimal number(std::string_view text) {
    return Decimal::parse(text).value();
}

TEST(Decimal, ReadsPlainAndScientificTextAndNothingElse) {
    const std::string nines(38, '9');
    const struct {
        std::string name;
        std::string text;
        std::optional<std::string> expected;
    } cases[] = {
        {"plain", "12.50", "12.5"},
        {"no whole part", ".70", "0.7"},
        {"no fraction", "5.", "5"},
        {"signs", "-00.00120", "-0.0012"},
        {"a plus", "+3", "3"},
        {"exponent", "-1.5e3", "-1500"},
        {"capital exponent with a sign", "25E-1", "2.5"},
        {"negative zero", "-0.00", "0"},
        {"thirty-eight digits", nines, nines},
        {"a tie at the 39th digit goes away from zero", "-1" + std::string(37, '0') + "5",
         "-1" + std::string(36, '0') + "10"},
        {"a carry through all digits", nines + "5", "1" + std::string(39, '0')},
        {"the 39th digit alone decides", "0." + nines + "4999", "0." + nines},
        {"zero of any size", "0e999999999999999999999", "0"},
        {"too large", "1e999999999", std::nullopt},
        {"too small", "1e-999999999", "0"},
        {"an exponent beyond any integer", "1e99999999999999999999999", std::nullopt},
        {"just readable", "9e999", "9" + std::string(999, '0')},
        {"just too large", "10e999", std::nullopt},
        {"rounded up past the bound", nines + "9e961", std::nullopt},
        {"empty", "", std::nullopt},
        {"a sign alone", "-", std::nullopt},
        {"a point alone", ".", std::nullopt},
        {"two points", "1.2.3", std::nullopt},
        {"two signs", "--1", std::nullopt},
        {"an exponent without digits", "1e", std::nullopt},
        {"an exponent alone", "e5", std::nullopt},
        {"a space", " 1", std::nullopt},
        {"letters behind", "12abc", std::nullopt},
        {"grouping", "1,000", std::nullopt},
        {"no finite number", "inf", std::nullopt},
        {"hexadecimal", "0x10", std::nullopt},
        {"a zero byte", std::string("1\0", 2), std::nullopt},
        {"Arabic digits", "\u0661\u0662", std::nullopt},
    };
    for (const auto& row : cases) {
        const auto value = Decimal::parse(row.text);
        EXPECT_EQ(value ? std::optional(value->text()) : std::nullopt, row.expected) << row.name;
    }
}

TEST(Decimal, TextsOfAnyLengthAreReadInOnePass) {
    const std::string zeros(8'000'000, '0');
    EXPECT_EQ(number("0." + zeros + "1e8000001").text(), "1");
    EXPECT_EQ(number("1" + zeros + "e-8000000").text(), "1");
    EXPECT_EQ(number("1." + zeros + "1").text(), "1");
    EXPECT_EQ(number(std::string(400, '7') + "e-400").text(), "0." + std::string(37, '7') + "8");
    EXPECT_FALSE(Decimal::parse("1" + zeros));
    EXPECT_FALSE(Decimal::parse("1e" + std::string(1'000'000, '9')));
}

TEST(Decimal, EqualNumbersAreEqualHoweverTheyCameAbout) {
    EXPECT_EQ(number("1.40"), number("14e-1"));
    EXPECT_EQ(Decimal(1000), number("1e3"));
    EXPECT_EQ(Decimal::scaled(-2500, -2), Decimal(-25));
    EXPECT_EQ(number("2.5") * Decimal(4), Decimal(10));
    EXPECT_EQ(number("0.7") - number("0.70"), Decimal());
    EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()).text(), "-9223372036854775808");
}

TEST(Decimal, RoundsOnceAndOnlyWhereThirtyEightDigitsDoNotSuffice) {
    const std::string nines(38, '9');
    const struct {
        std::string name;
        Decimal result;
        std::string expected;
    } cases[] = {
        {"a word's worth of places apart", Decimal::scaled(1, 19) + Decimal(1), "10000000000000000001"},
        {"first digit lost, above half", Decimal::scaled(1, 40) - Decimal(60), nines + "00"},
        {"first digit lost, exactly half", Decimal::scaled(1, 40) - Decimal(50), "1" + std::string(40, '0')},
        {"first digit lost, far below half", Decimal::scaled(1, 40) - number("1e-900"),
         "1" + std::string(40, '0')},
        {"exact though long", number("1e37") - number("0.1") - number("1e37"), "-0.1"},
        {"a quotient that is a tie", Decimal::parse("3" + std::string(36, '0') + "1").value() / Decimal(2),
         "15" + std::string(35, '0') + "1"},
        {"a negative third", Decimal(-2) / Decimal(3), "-0." + std::string(37, '6') + "7"},
        {"a long number by itself", number(nines) / number(nines), "1"},
        {"the largest squares", number(nines) * number(nines),
         std::string(37, '9') + "8" + std::string(38, '0')},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.result.text(), row.expected) << row.name;
    }
}

TEST(Decimal, SizesBeyondTheRangeStayAtItsEnds) {
    const auto large = Decimal::scaled(1, 6144);
    const auto largest = large * Decimal(10);
    EXPECT_EQ(largest.text(), std::string(38, '9') + std::string(6107, '0'));
    EXPECT_LT(large, largest);
    EXPECT_EQ(large * large, largest);
    EXPECT_EQ(largest + largest, largest);
    EXPECT_EQ(-largest - largest, -largest);
    EXPECT_EQ(Decimal(-1) / Decimal::scaled(1, -6144) * Decimal(-10), largest);
    EXPECT_FALSE(Decimal::scaled(15, -6145).isZero());
    EXPECT_EQ(Decimal::scaled(9, -6145), Decimal());
    EXPECT_EQ(Decimal::scaled(1, -6144) / Decimal(2), Decimal());
    EXPECT_EQ(Decimal::scaled(1, std::numeric_limits<int>::max()), largest);
    EXPECT_EQ(Decimal::scaled(10, std::numeric_limits<int>::min()), Decimal());
}

TEST(Decimal, OrdersByValue) {
    const Decimal ascending[] = {-Decimal::scaled(1, 6144),
                                 number("-1.5"),
                                 number("-1.49"),
                                 number("-1e-900"),
                                 Decimal(),
                                 number("1e-900"),
                                 number("0.1"),
                                 number("0.11"),
                                 Decimal(2),
                                 Decimal(10),
                                 number("1e40")};
    for (const auto& left : ascending) {
        for (const auto& right : ascending) {
            EXPECT_EQ(left <=> right, &left <=> &right) << left.text() << " and " << right.text();
        }
    }
}

TEST(Decimal, ARateBecomesTheNumberThatItsShortestTextShows) {
    EXPECT_EQ(Decimal::fromShortestText(1.3641)->text(), "1.3641");
    EXPECT_EQ(Decimal::fromShortestText(-0.0)->text(), "0");
    EXPECT_EQ(Decimal::fromShortestText(1e22)->text(), "1" + std::string(22, '0'));
    EXPECT_EQ(Decimal::fromShortestText(5e-324), number("5e-324"));
    EXPECT_EQ(Decimal::fromShortestText(std::numeric_limits<double>::max())->toDouble(),
              std::numeric_limits<double>::max());
    EXPECT_FALSE(Decimal::fromShortestText(std::nan("")));
    EXPECT_FALSE(Decimal::fromShortestText(-std::numeric_limits<double>::infinity()));
}

TEST(Decimal, ADoubleStaysFiniteAtTheEndsOfTheRange) {
    EXPECT_EQ(Decimal::scaled(-1, 400).toDouble(), -std::numeric_limits<double>::max());
    EXPECT_EQ(Decimal::scaled(1, -400).toDouble(), 0.0);
    EXPECT_EQ(number("4.9e-324").toDouble(), 5e-324);
}

TEST(Decimal, PartsAreGivenWhileTheDigitsFitInAWord) {
    const auto parts = number("-12.50").parts();
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->coefficient, -125);
    EXPECT_EQ(parts->exponent, -1);
    EXPECT_FALSE(number("9223372036854775808.5").parts());
}

}  // namespace
}  // namespace vantrell
