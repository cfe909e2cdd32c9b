#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrell {

class WideUnsigned;

/// An exact decimal number: a coefficient of up to 38 significant digits and a power of ten.
///
/// Sums, differences and products are exact while they fit in 38 digits; a longer result, like a quotient,
/// is rounded half away from zero at 38 digits. A result whose first digit would stand above 10^6144 stays at
/// the largest number of its sign, and one whose first digit would stand below 10^-6144 becomes 0. There is
/// no way in from a floating-point number but `fromShortestText`, and none out but `toDouble` and
/// `toLongDouble`.
///
///     Decimal::parse("1.40")->text()                 "1.4"
///     (*Decimal::parse("1.4") * Decimal(3)).text()   "4.2"
class Decimal {
  public:
    static constexpr int maxDigits = 38;

    constexpr Decimal() = default;
    /// Exactly `value`.
    constexpr Decimal(std::int64_t value)  // NOLINT(google-explicit-constructor)
        : coefficient_(value) {
        while (value != 0 && value % 10 == 0) {
            value /= 10;
            ++exponent_;
        }
        coefficient_ = value;
    }
    template <std::floating_point Real>
    Decimal(Real value) = delete;
    /// `coefficient` times ten to `exponent`.
    [[nodiscard]] static Decimal scaled(std::int64_t coefficient, int exponent);

    /// Reads an optional sign, ASCII digits with at most one point, and an optional exponent ("-1.5e3",
    /// ".70", "5."). Digits past the 38th are rounded. Absent for any other text, and if the first digit
    /// stands above 10^999; where it stands below 10^-999 the number is 0.
    [[nodiscard]] static std::optional<Decimal> parse(std::string_view text);

    /// The number that the shortest text which reads back as `value` stands for: 1.3641 becomes exactly
    /// 1.3641. Absent if `value` is not finite.
    [[nodiscard]] static std::optional<Decimal> fromShortestText(double value);

    /// Plain digits with "." and no exponent, no trailing zeros and no grouping: "-12.5", "0", "1000".
    [[nodiscard]] std::string text() const;

    /// The nearest double, at most the largest finite one; for sorting and charting only.
    [[nodiscard]] double toDouble() const;
    /// Likewise with more digits, for a result that several roundings lead to.
    [[nodiscard]] long double toLongDouble() const;

    [[nodiscard]] constexpr bool isZero() const { return coefficient_ == 0; }
    [[nodiscard]] constexpr bool isNegative() const { return coefficient_ < 0; }

    /// Coefficient and exponent with no trailing zeros in the coefficient, if the coefficient fits in 64
    /// bits.
    struct Parts {
        std::int64_t coefficient;
        int exponent;
    };
    [[nodiscard]] std::optional<Parts> parts() const;

    [[nodiscard]] Decimal operator-() const;
    Decimal& operator+=(const Decimal& other);
    Decimal& operator-=(const Decimal& other);
    friend Decimal operator+(const Decimal& left, const Decimal& right);
    friend Decimal operator-(const Decimal& left, const Decimal& right);
    friend Decimal operator*(const Decimal& left, const Decimal& right);
    /// `right` must not be zero.
    friend Decimal operator/(const Decimal& left, const Decimal& right);

    /// By value: 1.40 equals 1.4.
    friend bool operator==(const Decimal& left, const Decimal& right) = default;
    friend std::strong_ordering operator<=>(const Decimal& left, const Decimal& right);

  private:
    // Always without trailing zeros in the coefficient, and with exponent 0 for zero, so that equal numbers
    // have equal members.
    __extension__ using Coefficient = __int128;
    __extension__ using Magnitude = unsigned __int128;

    /// `magnitude` has at most 38 digits, or is 10^38.
    static Decimal normalised(bool negative, Magnitude magnitude, std::int64_t exponent);
    static Decimal rounded(bool negative, WideUnsigned magnitude, std::int64_t exponent);
    static Decimal wideSum(const Decimal& left, const Decimal& right);
    static Decimal wideQuotient(const Decimal& left, const Decimal& right);
    /// Without the signs; neither is zero.
    static std::strong_ordering compareSizes(const Decimal& left, const Decimal& right);
    [[nodiscard]] Magnitude magnitude() const;
    [[nodiscard]] std::string scientificText() const;
    [[nodiscard]] bool fitsWord() const { return coefficient_ == static_cast<std::int64_t>(coefficient_); }

    Coefficient coefficient_ = 0;
    std::int32_t exponent_ = 0;
};

}  // namespace vantrell
