#include "testing/BigDecimal.h"

#include <random>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

/// Numbers of every length, with long runs of equal digits: nines carry, zeros are stripped, fives are ties.
class NumberSource {
  public:
    explicit NumberSource(unsigned seed) : random_(seed) {}

    std::string next(int mostDigits, int mostExponent) {
        std::string digits = std::to_string(1 + below(9));
        const auto length = 1 + static_cast<std::size_t>(below(mostDigits));
        while (digits.size() < length) {
            const auto run = below(3) == 0 ? 1 + static_cast<std::size_t>(below(20)) : 1;
            digits.append(std::min(run, length - digits.size()), "0123456789995"[below(13)]);
        }
        const int exponent = below(2 * mostExponent + 1) - mostExponent;
        return (below(2) == 0 ? "-" : "") + digits + "e" + std::to_string(exponent);
    }

  private:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

    std::mt19937 random_;
};

TEST(DecimalAgainstBigNumbers, EachNumberIsExactOrRoundedOnceAtThirtyEightDigits) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    NumberSource numbers(seed);
    for (int i = 0; i < 3000 && !HasFailure(); ++i) {
        const bool oneWord = i % 2 == 0;
        const auto left = numbers.next(oneWord ? 19 : 38, oneWord ? 12 : 60);
        const auto right = numbers.next(oneWord ? 19 : 38, oneWord ? 12 : 60);
        EXPECT_EQ(testing::disagreement(left, right), "") << left << " and " << right;
    }
}

}  // namespace
}  // namespace vantrell
