#include "base/Decimal.h"

#include "PowersOfTen.h"
#include "WideUnsigned.h"

#include <algorithm>
#include <cassert>

namespace vantrell {
namespace {

constexpr std::int64_t highestPlace = 6144;
constexpr std::int64_t lowestPlace = -6144;

struct Stripped {
    UInt128 magnitude;
    int zeros;
};

bool isMultipleOfTen(UInt128 value) {
    // 2^64 leaves 1 when divided by 5, so the halves can be looked at one by one.
    const auto high = static_cast<std::uint64_t>(value >> 64U);
    const auto low = static_cast<std::uint64_t>(value);
    return low % 2 == 0 && (high % 5 + low % 5) % 5 == 0;
}

Stripped withoutTrailingZeros(UInt128 magnitude) {
    int zeros = 0;
    if (!isMultipleOfTen(magnitude)) {
        return {magnitude, zeros};
    }
    for (const int step : {16, 8, 4, 2, 1}) {
        while (magnitude % powerOfTen(step) == 0) {
            magnitude /= powerOfTen(step);
            zeros += step;
        }
    }
    return {magnitude, zeros};
}

}  // namespace

Decimal::Magnitude Decimal::magnitude() const {
    return static_cast<Magnitude>(coefficient_ < 0 ? -coefficient_ : coefficient_);
}

Decimal Decimal::normalised(bool negative, Magnitude magnitude, std::int64_t exponent) {
    if (magnitude == 0) {
        return {};
    }
    auto [stripped, zeros] = withoutTrailingZeros(magnitude);
    exponent += zeros;
    if (exponent < lowestPlace || exponent > highestPlace - maxDigits + 1) {
        const auto firstPlace = exponent + digitCount(stripped) - 1;
        if (firstPlace < lowestPlace) {
            return {};
        }
        if (firstPlace > highestPlace) {
            stripped = powerOfTen(maxDigits) - 1;
            exponent = highestPlace - maxDigits + 1;
        }
    }
    Decimal result;
    result.coefficient_ = negative ? -static_cast<Coefficient>(stripped) : static_cast<Coefficient>(stripped);
    result.exponent_ = static_cast<std::int32_t>(exponent);
    return result;
}

Decimal Decimal::rounded(bool negative, WideUnsigned magnitude, std::int64_t exponent) {
    const int excess = magnitude.digitCount() - maxDigits;
    if (excess > 0) {
        // Half of the last kept place makes the cut that follows a rounding away from zero.
        WideUnsigned half = WideUnsigned::powerOfTen(excess - 1);
        half *= 5;
        magnitude += half;
        magnitude.divideByPowerOfTen(excess);
        exponent += excess;
    }
    return normalised(negative, magnitude.narrow(), exponent);
}

Decimal Decimal::scaled(std::int64_t coefficient, int exponent) {
    Decimal result(coefficient);
    return normalised(result.isNegative(), result.magnitude(), std::int64_t{result.exponent_} + exponent);
}

std::optional<Decimal::Parts> Decimal::parts() const {
    if (!fitsWord()) {
        return std::nullopt;
    }
    return Parts{static_cast<std::int64_t>(coefficient_), exponent_};
}

Decimal Decimal::operator-() const {
    Decimal result = *this;
    result.coefficient_ = -coefficient_;
    return result;
}

Decimal Decimal::wideSum(const Decimal& left, const Decimal& right) {
    if (left.isZero() || right.isZero()) {
        return left.isZero() ? right : left;
    }
    const bool leftIsCoarse = left.exponent_ >= right.exponent_;
    const Decimal& coarse = leftIsCoarse ? left : right;
    const Decimal& fine = leftIsCoarse ? right : left;
    const int firstPlace = coarse.exponent_ + digitCount(coarse.magnitude()) - 1;
    const int firstFinePlace = fine.exponent_ + digitCount(fine.magnitude()) - 1;
    // Even if the subtraction costs `coarse` its first place, what is smaller than this can't reach half of
    // the last one.
    if (firstFinePlace < firstPlace - maxDigits - 1) {
        return coarse;
    }
    WideUnsigned first(coarse.magnitude());
    first.multiplyByPowerOfTen(coarse.exponent_ - fine.exponent_);
    WideUnsigned second(fine.magnitude());
    if (coarse.isNegative() == fine.isNegative()) {
        first += second;
        return rounded(coarse.isNegative(), first, fine.exponent_);
    }
    if (first >= second) {
        first -= second;
        return rounded(coarse.isNegative(), first, fine.exponent_);
    }
    second -= first;
    return rounded(fine.isNegative(), second, fine.exponent_);
}

Decimal operator+(const Decimal& left, const Decimal& right) {
    const bool leftIsCoarse = left.exponent_ >= right.exponent_;
    const Decimal& coarse = leftIsCoarse ? left : right;
    const Decimal& fine = leftIsCoarse ? right : left;
    const int gap = coarse.exponent_ - fine.exponent_;
    std::int64_t sum = 0;
    if (gap > 18 || !coarse.fitsWord() || !fine.fitsWord() ||
        __builtin_mul_overflow(static_cast<std::int64_t>(coarse.coefficient_),
                               static_cast<std::int64_t>(powerOfTen(gap)), &sum) ||
        __builtin_add_overflow(sum, static_cast<std::int64_t>(fine.coefficient_), &sum)) {
        return Decimal::wideSum(left, right);
    }
    Decimal result(sum);
    if (sum != 0) {
        result.exponent_ += fine.exponent_;
    }
    return result;
}

Decimal operator-(const Decimal& left, const Decimal& right) {
    return left + -right;
}

Decimal operator*(const Decimal& left, const Decimal& right) {
    const bool negative = left.isNegative() != right.isNegative();
    const auto exponent = std::int64_t{left.exponent_} + right.exponent_;
    if (left.fitsWord() && right.fitsWord()) {
        return Decimal::normalised(negative, left.magnitude() * right.magnitude(), exponent);
    }
    return Decimal::rounded(negative, WideUnsigned::product(left.magnitude(), right.magnitude()), exponent);
}

Decimal Decimal::wideQuotient(const Decimal& left, const Decimal& right) {
    const auto dividend = left.magnitude();
    const auto divisor = right.magnitude();
    const int longer = digitCount(divisor) - digitCount(dividend);
    const bool startsBelow =
        longer >= 0 ? dividend * powerOfTen(longer) < divisor : dividend < divisor * powerOfTen(-longer);
    // Scaled so that the quotient has 38 digits exactly; the remainder then tells how to round.
    const int scale = longer + maxDigits - (startsBelow ? 0 : 1);
    WideUnsigned numerator(dividend);
    numerator.multiplyByPowerOfTen(scale);
    auto [quotient, remainder] = numerator.dividedBy(divisor);
    if (remainder >= divisor - remainder) {
        ++quotient;
    }
    return normalised(left.isNegative() != right.isNegative(), quotient,
                      std::int64_t{left.exponent_} - right.exponent_ - scale);
}

Decimal operator/(const Decimal& left, const Decimal& right) {
    assert(!right.isZero());
    if (left.fitsWord() && right.fitsWord()) {
        const auto dividend = static_cast<std::uint64_t>(left.magnitude());
        const auto divisor = static_cast<std::uint64_t>(right.magnitude());
        if (dividend % divisor == 0) {
            return Decimal::normalised(left.isNegative() != right.isNegative(), dividend / divisor,
                                       std::int64_t{left.exponent_} - right.exponent_);
        }
    }
    return Decimal::wideQuotient(left, right);
}

Decimal& Decimal::operator+=(const Decimal& other) {
    return *this = *this + other;
}

Decimal& Decimal::operator-=(const Decimal& other) {
    return *this = *this - other;
}

std::strong_ordering Decimal::compareSizes(const Decimal& left, const Decimal& right) {
    const int leftDigits = digitCount(left.magnitude());
    const int rightDigits = digitCount(right.magnitude());
    const auto byPlace = left.exponent_ + leftDigits <=> right.exponent_ + rightDigits;
    if (std::is_neq(byPlace)) {
        return byPlace;
    }
    const int digits = std::max(leftDigits, rightDigits);
    return left.magnitude() * powerOfTen(digits - leftDigits) <=>
           right.magnitude() * powerOfTen(digits - rightDigits);
}

std::strong_ordering operator<=>(const Decimal& left, const Decimal& right) {
    if (left.exponent_ == right.exponent_ || left.isNegative() != right.isNegative() || left.isZero() ||
        right.isZero()) {
        return left.coefficient_ <=> right.coefficient_;
    }
    return left.isNegative() ? Decimal::compareSizes(right, left) : Decimal::compareSizes(left, right);
}

}  // namespace vantrell
