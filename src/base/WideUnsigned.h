#pragma once

#include "PowersOfTen.h"

#include <array>
#include <compare>
#include <cstdint>

namespace vantrell {

/// An unsigned integer of 256 bits: room for the exact intermediate results of `Decimal`, which have up to 77
/// digits. Nothing checks for results beyond that.
class WideUnsigned {
  public:
    constexpr WideUnsigned() = default;
    constexpr explicit WideUnsigned(UInt128 value)
        : limbs_{0, 0, static_cast<std::uint64_t>(value >> 64U), static_cast<std::uint64_t>(value)} {}

    [[nodiscard]] static WideUnsigned product(UInt128 left, UInt128 right);
    /// 10 to `exponent`, which lies in 0 to 77.
    [[nodiscard]] static const WideUnsigned& powerOfTen(int exponent);

    WideUnsigned& operator+=(const WideUnsigned& other);
    /// `other` must not be larger.
    WideUnsigned& operator-=(const WideUnsigned& other);
    constexpr WideUnsigned& operator*=(std::uint64_t factor) {
        std::uint64_t carry = 0;
        for (auto limb = limbs_.rbegin(); limb != limbs_.rend(); ++limb) {
            const UInt128 part = UInt128{*limb} * factor + carry;
            *limb = static_cast<std::uint64_t>(part);
            carry = static_cast<std::uint64_t>(part >> 64U);
        }
        return *this;
    }
    void multiplyByPowerOfTen(int exponent);
    /// Drops the last `exponent` decimal digits.
    void divideByPowerOfTen(int exponent);

    struct Division {
        UInt128 quotient;
        UInt128 remainder;
    };
    /// The quotient must fit in 128 bits and the divisor in 127.
    [[nodiscard]] Division dividedBy(UInt128 divisor) const;

    [[nodiscard]] int digitCount() const;
    /// The value, which must fit in 128 bits.
    [[nodiscard]] UInt128 narrow() const { return (UInt128{limbs_[2]} << 64U) | limbs_[3]; }

    friend auto operator<=>(const WideUnsigned&, const WideUnsigned&) = default;

  private:
    [[nodiscard]] int bitWidth() const;
    std::uint64_t divideBy(std::uint64_t divisor);

    // The most significant first, so that the order of the members is the order of the values.
    std::array<std::uint64_t, 4> limbs_{};
};

}  // namespace vantrell
