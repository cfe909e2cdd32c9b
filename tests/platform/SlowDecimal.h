#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace vantrell {

/// Decimal arithmetic as done on paper, digit by digit and without a limit: the independent opinion that the
/// fast arithmetic is held against. Digits stand with the most significant first.
struct SlowDecimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

inline std::string withoutLeadingZeros(std::string digits) {
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

inline bool isLess(const std::string& left, const std::string& right) {
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

/// left + sign * right, digit by digit; with a negative sign `right` must not be larger.
inline std::string paperSum(std::string left, std::string right, int sign) {
    const auto length = std::max(left.size(), right.size()) + 1;
    left.insert(0, length - left.size(), '0');
    right.insert(0, length - right.size(), '0');
    int carry = 0;
    for (auto i = length; i-- > 0;) {
        const int column = left[i] - '0' + sign * (right[i] - '0') + carry + 10;
        left[i] = static_cast<char>('0' + column % 10);
        carry = column / 10 - 1;
    }
    return withoutLeadingZeros(left);
}

inline SlowDecimal slowSum(SlowDecimal left, SlowDecimal right) {
    const int exponent = std::min(left.exponent, right.exponent);
    left.digits.append(static_cast<std::size_t>(left.exponent - exponent), '0');
    right.digits.append(static_cast<std::size_t>(right.exponent - exponent), '0');
    if (left.negative == right.negative) {
        return {left.negative, paperSum(left.digits, right.digits, 1), exponent};
    }
    if (isLess(left.digits, right.digits)) {
        std::swap(left, right);
    }
    return {left.negative, paperSum(left.digits, right.digits, -1), exponent};
}

inline SlowDecimal slowProduct(const SlowDecimal& left, const SlowDecimal& right) {
    std::string digits;
    for (const char factor : right.digits) {
        digits.push_back('0');
        for (char times = '0'; times < factor; ++times) {
            digits = paperSum(digits, left.digits, 1);
        }
    }
    return {left.negative != right.negative, withoutLeadingZeros(digits), left.exponent + right.exponent};
}

/// Cut, not rounded, far behind the 38th digit.
inline SlowDecimal slowQuotient(SlowDecimal left, const SlowDecimal& right) {
    constexpr int places = 80;
    left.digits.append(places, '0');
    std::string digits;
    std::string rest;
    for (const char next : left.digits) {
        rest.push_back(next);
        rest = withoutLeadingZeros(rest);
        char digit = '0';
        for (; !isLess(rest, right.digits); ++digit) {
            rest = paperSum(rest, right.digits, -1);
        }
        digits.push_back(digit);
    }
    return {left.negative != right.negative, withoutLeadingZeros(digits),
            left.exponent - right.exponent - places};
}

/// Plain digits after rounding half away from zero at 38 digits.
inline std::string slowText(SlowDecimal value) {
    constexpr std::size_t kept = 38;
    if (value.digits.size() > kept) {
        const bool up = value.digits[kept] >= '5';
        value.exponent += static_cast<int>(value.digits.size() - kept);
        value.digits = paperSum(value.digits.substr(0, kept), up ? "1" : "0", 1);
    }
    if (value.digits.empty()) {
        return "0";
    }
    auto text = value.digits.append(static_cast<std::size_t>(std::max(value.exponent, 0)), '0');
    if (value.exponent < 0) {
        const auto places = static_cast<std::size_t>(-value.exponent);
        text.insert(0, text.size() <= places ? places + 1 - text.size() : 0, '0');
        text.insert(text.size() - places, ".");
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return (value.negative ? "-" : "") + text;
}

}  // namespace vantrell
