#include "PowersOfTen.h"
#include "base/Decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace vantrell {
namespace {

constexpr std::int64_t highestReadPlace = 999;
constexpr std::int64_t lowestReadPlace = -999;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool takeSign(std::string_view& text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return negative;
}

/// What a run of digits stands for: an integer of at most 38 digits and the power of ten that it counts.
class Digits {
  public:
    void append(char character, bool behindPoint) {
        const auto digit = static_cast<unsigned>(character - '0');
        if (kept_ < Decimal::maxDigits) {
            kept_ += kept_ > 0 || digit != 0 ? 1 : 0;
            coefficient_ = coefficient_ * 10U + digit;
        } else {
            // Only the first digit that is dropped decides whether the half is reached.
            roundUp_ = dropped_ == 0 ? digit >= 5 : roundUp_;
            ++dropped_;
        }
        fraction_ += behindPoint ? 1 : 0;
    }
    [[nodiscard]] UInt128 coefficient() const { return coefficient_ + (roundUp_ ? 1U : 0U); }
    [[nodiscard]] std::int64_t exponent() const { return dropped_ - fraction_; }

  private:
    UInt128 coefficient_ = 0;
    int kept_ = 0;
    bool roundUp_ = false;
    std::int64_t dropped_ = 0;
    std::int64_t fraction_ = 0;
};

/// Takes digits with at most one point off the front; absent if there is no digit.
std::optional<Digits> takeDigits(std::string_view& text) {
    Digits digits;
    bool point = false;
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        if (text[length] == '.' && !point) {
            point = true;
        } else if (isDigit(text[length])) {
            digits.append(text[length], point);
        } else {
            break;
        }
    }
    text.remove_prefix(length);
    const bool anyDigit = length > (point ? 1U : 0U);
    return anyDigit ? std::optional(digits) : std::nullopt;
}

/// Takes an exponent off the front: 0 if there is none, absent if it has no digits.
std::optional<std::int64_t> takeExponent(std::string_view& text) {
    if (!text.starts_with('e') && !text.starts_with('E')) {
        return 0;
    }
    text.remove_prefix(1);
    const bool negative = takeSign(text);
    if (text.empty() || !isDigit(text.front())) {
        return std::nullopt;
    }
    // Far beyond the length of any text, so that no text can bring a larger exponent back into range.
    constexpr std::int64_t bound = 100'000'000'000'000'000;
    std::int64_t exponent = 0;
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
        exponent = exponent < bound ? exponent * 10 + (text.front() - '0') : exponent;
    }
    return negative ? -exponent : exponent;
}

/// A number of at most 38 digits as text, in a buffer of its own.
class DigitText {
  public:
    explicit DigitText(UInt128 value) {
        constexpr int digitsOfWord = 19;
        const auto upper = static_cast<std::uint64_t>(value / powerOfTen(digitsOfWord));
        const auto lower = static_cast<std::uint64_t>(value % powerOfTen(digitsOfWord));
        prepend(lower, upper != 0 ? digitsOfWord : 1);
        if (upper != 0) {
            prepend(upper, 1);
        }
    }
    [[nodiscard]] std::string_view view() const { return {&buffer_[start_], buffer_.size() - start_}; }

  private:
    void prepend(std::uint64_t word, int leastDigits) {
        for (; word != 0 || leastDigits > 0; word /= 10, --leastDigits) {
            buffer_[--start_] = static_cast<char>('0' + word % 10);
        }
    }

    std::array<char, 40> buffer_{};
    std::size_t start_ = buffer_.size();
};

/// The exact double, where both factors and so the one rounding of their product or quotient are exact.
std::optional<double> quickDouble(const std::optional<Decimal::Parts>& parts) {
    constexpr std::int64_t exactBelow = std::int64_t{1} << 53U;
    constexpr std::array<double, 23> powers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                            1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                            1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    if (!parts || parts->coefficient > exactBelow || parts->coefficient < -exactBelow) {
        return std::nullopt;
    }
    const auto coefficient = static_cast<double>(parts->coefficient);
    const auto place = static_cast<std::size_t>(std::abs(parts->exponent));
    if (place >= powers.size()) {
        return std::nullopt;
    }
    return parts->exponent < 0 ? coefficient / powers[place] : coefficient * powers[place];
}

/// At most the largest finite number.
template <typename Real>
Real nearest(const std::string& scientific) {
    Real value = 0;
    const auto read = std::from_chars(scientific.data(), scientific.data() + scientific.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        const bool isSmall = scientific.find("e-") != std::string::npos;
        const bool isNegative = scientific.front() == '-';
        const Real largest = std::numeric_limits<Real>::max();
        return isSmall ? 0 : (isNegative ? -largest : largest);
    }
    return value;
}

}  // namespace

std::optional<Decimal> Decimal::parse(std::string_view text) {
    const bool negative = takeSign(text);
    const auto digits = takeDigits(text);
    const auto exponent = takeExponent(text);
    if (!digits || !exponent || !text.empty()) {
        return std::nullopt;
    }
    if (digits->coefficient() == 0) {
        return Decimal();
    }
    const auto scale = digits->exponent() + *exponent;
    const auto firstPlace = scale + digitCount(digits->coefficient()) - 1;
    if (firstPlace > highestReadPlace) {
        return std::nullopt;
    }
    return firstPlace < lowestReadPlace ? Decimal() : normalised(negative, digits->coefficient(), scale);
}

std::optional<Decimal> Decimal::fromShortestText(double value) {
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::scientific);
    return parse({buffer.begin(), written.ptr});
}

std::string Decimal::text() const {
    const DigitText digits(magnitude());
    const auto shown = digits.view();
    const auto length = static_cast<std::int64_t>(shown.size());
    std::string result(isNegative() ? "-" : "");
    if (exponent_ >= 0) {
        return result.append(shown).append(static_cast<std::size_t>(exponent_), '0');
    }
    const auto whole = length + exponent_;
    if (whole <= 0) {
        return result.append("0.").append(static_cast<std::size_t>(-whole), '0').append(shown);
    }
    const auto split = static_cast<std::size_t>(whole);
    return result.append(shown.substr(0, split)).append(".").append(shown.substr(split));
}

double Decimal::toDouble() const {
    if (const auto quick = quickDouble(parts())) {
        return *quick;
    }
    return nearest<double>(scientificText());
}

long double Decimal::toLongDouble() const {
    return nearest<long double>(scientificText());
}

std::string Decimal::scientificText() const {
    std::string text(isNegative() ? "-" : "");
    return text.append(DigitText(magnitude()).view()).append("e").append(std::to_string(exponent_));
}

}  // namespace vantrell
