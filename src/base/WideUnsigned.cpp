#include "WideUnsigned.h"

#include <bit>
#include <cstddef>

namespace vantrell {
namespace {

constexpr int digitsOfLimb = 19;

constexpr std::uint64_t lowHalf(UInt128 value) {
    return static_cast<std::uint64_t>(value);
}

constexpr std::uint64_t highHalf(UInt128 value) {
    return static_cast<std::uint64_t>(value >> 64U);
}

}  // namespace

WideUnsigned& WideUnsigned::operator+=(const WideUnsigned& other) {
    UInt128 carry = 0;
    for (std::size_t i = limbs_.size(); i-- > 0;) {
        carry += UInt128{limbs_[i]} + other.limbs_[i];
        limbs_[i] = lowHalf(carry);
        carry >>= 64U;
    }
    return *this;
}

WideUnsigned& WideUnsigned::operator-=(const WideUnsigned& other) {
    std::uint64_t borrow = 0;
    for (std::size_t i = limbs_.size(); i-- > 0;) {
        const UInt128 difference = UInt128{limbs_[i]} - other.limbs_[i] - borrow;
        limbs_[i] = lowHalf(difference);
        borrow = highHalf(difference) != 0 ? 1 : 0;
    }
    return *this;
}

WideUnsigned WideUnsigned::product(UInt128 left, UInt128 right) {
    WideUnsigned result(left);
    result *= lowHalf(right);
    if (highHalf(right) != 0) {
        WideUnsigned upper(left);
        upper *= highHalf(right);
        upper.limbs_ = {upper.limbs_[1], upper.limbs_[2], upper.limbs_[3], 0};
        result += upper;
    }
    return result;
}

const WideUnsigned& WideUnsigned::powerOfTen(int exponent) {
    static constexpr auto powers = [] {
        std::array<WideUnsigned, 78> table{WideUnsigned(1)};
        for (std::size_t i = 1; i < table.size(); ++i) {
            table[i] = table[i - 1];
            table[i] *= 10;
        }
        return table;
    }();
    return powers.at(static_cast<std::size_t>(exponent));
}

void WideUnsigned::multiplyByPowerOfTen(int exponent) {
    for (; exponent > digitsOfLimb; exponent -= digitsOfLimb) {
        *this *= lowHalf(vantrell::powerOfTen(digitsOfLimb));
    }
    *this *= lowHalf(vantrell::powerOfTen(exponent));
}

void WideUnsigned::divideByPowerOfTen(int exponent) {
    for (; exponent > digitsOfLimb; exponent -= digitsOfLimb) {
        divideBy(lowHalf(vantrell::powerOfTen(digitsOfLimb)));
    }
    divideBy(lowHalf(vantrell::powerOfTen(exponent)));
}

std::uint64_t WideUnsigned::divideBy(std::uint64_t divisor) {
    std::uint64_t remainder = 0;
    for (auto& limb : limbs_) {
        const UInt128 part = (UInt128{remainder} << 64U) | limb;
        limb = lowHalf(part / divisor);
        remainder = lowHalf(part) - limb * divisor;
    }
    return remainder;
}

WideUnsigned::Division WideUnsigned::dividedBy(UInt128 divisor) const {
    if (highHalf(divisor) == 0) {
        WideUnsigned quotient = *this;
        const auto remainder = quotient.divideBy(lowHalf(divisor));
        return {quotient.narrow(), remainder};
    }
    // Bit by bit: divisors of this size come from quotients alone and are rare.
    Division result{0, 0};
    for (const auto limb : limbs_) {
        for (unsigned bit = 64; bit-- > 0;) {
            result.remainder = (result.remainder << 1U) | ((limb >> bit) & 1U);
            result.quotient <<= 1U;
            if (result.remainder >= divisor) {
                result.remainder -= divisor;
                result.quotient |= 1U;
            }
        }
    }
    return result;
}

int WideUnsigned::bitWidth() const {
    int below = 256;
    for (const auto limb : limbs_) {
        below -= 64;
        if (limb != 0) {
            return below + static_cast<int>(std::bit_width(limb));
        }
    }
    return 0;
}

int WideUnsigned::digitCount() const {
    const int sure = wholeDecimalDigits(bitWidth());
    return *this >= powerOfTen(sure) ? sure + 1 : sure;
}

}  // namespace vantrell
