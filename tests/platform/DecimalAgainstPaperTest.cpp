#include "SlowDecimal.h"
#include "platform/Decimal.h"

#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

/// Numbers of every length, with long runs of equal digits: nines carry, zeros are stripped, fives are ties.
class NumberSource {
  public:
    explicit NumberSource(unsigned seed) : random_(seed) {}

    SlowDecimal next() {
        SlowDecimal number{below(2) == 0, std::to_string(1 + below(9)), below(121) - 60};
        const auto length = 1 + static_cast<std::size_t>(below(38));
        while (number.digits.size() < length) {
            const bool run = below(3) == 0;
            const auto count =
                std::min(run ? 1 + static_cast<std::size_t>(below(20)) : 1, length - number.digits.size());
            number.digits.append(count, run ? "0599"[below(4)] : static_cast<char>('0' + below(10)));
        }
        return number;
    }

  private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

    std::mt19937 random_;
};

Decimal decimal(const SlowDecimal& number) {
    return Decimal::parse((number.negative ? "-" : "") + number.digits + "e" +
                          std::to_string(number.exponent))
        .value();
}

TEST(DecimalAgainstPaper, ArithmeticIsExactOrRoundedOnceAtThirtyEightDigits) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        const auto a = numbers.next();
        auto b = numbers.next();
        b.exponent = i % 2 == 0 ? b.exponent : a.exponent + b.exponent / 2;
        const auto minusB = SlowDecimal{!b.negative, b.digits, b.exponent};
        SCOPED_TRACE(slowText(a) + " and " + slowText(b));
        EXPECT_EQ((decimal(a) + decimal(b)).text(), slowText(slowSum(a, b)));
        EXPECT_EQ((decimal(a) - decimal(b)).text(), slowText(slowSum(a, minusB)));
        EXPECT_EQ((decimal(a) * decimal(b)).text(), slowText(slowProduct(a, b)));
        EXPECT_EQ((decimal(a) / decimal(b)).text(), slowText(slowQuotient(a, b)));
        const auto difference = slowSum(a, minusB);
        EXPECT_EQ(decimal(a) < decimal(b), !difference.digits.empty() && difference.negative);
    }
}

TEST(DecimalAgainstPaper, NumbersOfOneWordTakeTheSameValuesOnTheQuickWay) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        auto a = numbers.next();
        auto b = numbers.next();
        a.digits.resize(std::min<std::size_t>(a.digits.size(), 1 + static_cast<std::size_t>(i) % 19));
        b.digits.resize(std::min<std::size_t>(b.digits.size(), 19));
        b.exponent = a.exponent + b.exponent / 5;
        SCOPED_TRACE(slowText(a) + " and " + slowText(b));
        EXPECT_EQ((decimal(a) + decimal(b)).text(), slowText(slowSum(a, b)));
        EXPECT_EQ((decimal(a) * decimal(b)).text(), slowText(slowProduct(a, b)));
        EXPECT_EQ((decimal(a) / decimal(b)).text(), slowText(slowQuotient(a, b)));
    }
}

TEST(DecimalAgainstPaper, TheNearestDoubleIsTheOneThatTheTextReadsAs) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        auto number = numbers.next();
        if (i % 2 == 0) {
            number.digits.resize(std::min<std::size_t>(number.digits.size(), 17));
            number.exponent /= 3;
        }
        const auto text = slowText(number);
        EXPECT_EQ(Decimal::parse(text)->toDouble(), std::strtod(text.c_str(), nullptr)) << text;
    }
}

}  // namespace
}  // namespace vantrell
