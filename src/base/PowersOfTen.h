#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vantrell {

__extension__ using UInt128 = unsigned __int128;

namespace detail {

constexpr std::array<UInt128, 39> makePowersOfTen() {
    std::array<UInt128, 39> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * 10U;
    }
    return powers;
}

inline constexpr std::array<UInt128, 39> powersOfTen = makePowersOfTen();

}  // namespace detail

/// 10 to `exponent`, which lies in 0 to 38.
[[nodiscard]] constexpr UInt128 powerOfTen(int exponent) {
    return detail::powersOfTen[static_cast<std::size_t>(exponent)];
}

/// The most decimal digits, less one, that a number of `bits` binary digits can have.
[[nodiscard]] constexpr int wholeDecimalDigits(int bits) {
    // log10(2) as a fraction, rounded down; exact in the result up to 256 bits.
    return static_cast<int>((static_cast<std::int64_t>(bits) * 1'262'611) >> 22);
}

/// Number of decimal digits; 0 has none.
[[nodiscard]] constexpr int digitCount(UInt128 value) {
    const auto high = static_cast<std::uint64_t>(value >> 64U);
    const auto low = static_cast<std::uint64_t>(value);
    const int bits =
        high != 0 ? 64 + static_cast<int>(std::bit_width(high)) : static_cast<int>(std::bit_width(low));
    const int sure = wholeDecimalDigits(bits);
    return value >= powerOfTen(sure) ? sure + 1 : sure;
}

}  // namespace vantrell
