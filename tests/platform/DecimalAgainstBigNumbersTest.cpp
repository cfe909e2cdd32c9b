#include "testing/BigDecimal.h"

#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using testing::bigNumber;
using testing::rounded;

/// Whole digits, with a sign if negative, times a power of ten.
struct BigDecimal {
    std::string digits;
    int exponent = 0;

    [[nodiscard]] std::string text() const { return digits + "e" + std::to_string(exponent); }
};

/// Numbers of every length, with long runs of equal digits: nines carry, zeros are stripped, fives are ties.
class NumberSource {
  public:
    explicit NumberSource(unsigned seed) : random_(seed) {}

    BigDecimal next(int mostDigits, int mostExponent) {
        std::string digits = std::to_string(1 + below(9));
        const auto length = 1 + static_cast<std::size_t>(below(mostDigits));
        while (digits.size() < length) {
            const auto run = below(3) == 0 ? 1 + static_cast<std::size_t>(below(20)) : 1;
            digits.append(std::min(run, length - digits.size()), "0123456789995"[below(13)]);
        }
        return {(below(2) == 0 ? "-" : "") + digits, below(2 * mostExponent + 1) - mostExponent};
    }

  private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

    std::mt19937 random_;
};

TEST(DecimalAgainstBigNumbers, ArithmeticIsExactOrRoundedOnceAtThirtyEightDigits) {
    constexpr int places = 250;
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    const std::unique_ptr<BN_CTX, OpenSslRelease<BN_CTX_free>> context(BN_CTX_new());
    const OwnedNumber result(BN_new());
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        const bool oneWord = i % 2 == 0;
        const auto a = numbers.next(oneWord ? 19 : 38, oneWord ? 12 : 60);
        const auto b = numbers.next(oneWord ? 19 : 38, oneWord ? 12 : 60);
        SCOPED_TRACE(a.text() + " and " + b.text());
        const auto left = Decimal::parse(a.text()).value();
        const auto right = Decimal::parse(b.text()).value();
        const int exponent = std::min(a.exponent, b.exponent);
        const auto bigLeft = bigNumber(a.digits, a.exponent - exponent);
        const auto bigRight = bigNumber(b.digits, b.exponent - exponent);
        BN_add(result.get(), bigLeft.get(), bigRight.get());
        EXPECT_EQ((left + right).text(), rounded(result, exponent));
        BN_sub(result.get(), bigLeft.get(), bigRight.get());
        EXPECT_EQ((left - right).text(), rounded(result, exponent));
        BN_mul(result.get(), bigLeft.get(), bigRight.get(), context.get());
        EXPECT_EQ((left * right).text(), rounded(result, 2 * exponent));
        const auto dividend = bigNumber(a.digits, a.exponent - exponent + places);
        BN_div(result.get(), nullptr, dividend.get(), bigRight.get(), context.get());
        EXPECT_EQ((left / right).text(), rounded(result, -places));
        EXPECT_EQ(left <=> right, BN_cmp(bigLeft.get(), bigRight.get()) <=> 0);
    }
}

TEST(DecimalAgainstBigNumbers, ATextAndTheNearestDoubleAreThoseOfTheNumber) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        const auto text = i % 2 == 0 ? numbers.next(17, 20).text() : numbers.next(38, 60).text();
        const auto number = Decimal::parse(text).value();
        EXPECT_EQ(number.toDouble(), std::strtod(text.c_str(), nullptr)) << text;
        EXPECT_EQ(Decimal::parse(number.text()), number) << text;
    }
}

}  // namespace
}  // namespace vantrell
