#pragma once

#include "OpenSslOwners.h"
#include "base/Decimal.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include <openssl/bn.h>

// OpenSSL's integers of any length are the independent opinion that the fast arithmetic is held against.

namespace vantrell::testing {

[[nodiscard]] inline OwnedNumber bigNumber(const std::string& digits, int zeros = 0) {
    BIGNUM* number = nullptr;
    BN_dec2bn(&number, (digits + std::string(static_cast<std::size_t>(zeros), '0')).c_str());
    return OwnedNumber(number);
}

/// Rounded half away from zero at 38 digits, so that the program need not round while it reads.
[[nodiscard]] inline std::string rounded(const OwnedNumber& number, int exponent) {
    char* text = BN_bn2dec(number.get());
    std::string digits = text;
    OPENSSL_free(text);
    const bool negative = digits.front() == '-';
    if (const std::size_t kept = negative ? 39 : 38; digits.size() > kept) {
        const bool up = digits[kept] >= '5';
        const auto sum = bigNumber(digits.substr(0, kept));
        BN_add(sum.get(), sum.get(), bigNumber(!up ? "0" : negative ? "-1" : "1").get());
        return rounded(sum, exponent + static_cast<int>(digits.size() - kept));
    }
    return Decimal::parse(digits + "e" + std::to_string(exponent))->text();
}

/// Digits and power of ten of a text that is a number, read in the plainest way.
[[nodiscard]] inline std::pair<std::string, int> digitsOf(std::string_view text) {
    std::string digits(text.starts_with('-') ? "-" : "");
    const std::size_t mark = text.find_first_of("eE");
    int exponent = mark == std::string_view::npos ? 0 : std::stoi(std::string(text.substr(mark + 1)));
    bool isFraction = false;
    for (const char letter : text.substr(0, mark)) {
        isFraction = isFraction || letter == '.';
        if (letter >= '0' && letter <= '9') {
            digits += letter;
            exponent -= isFraction ? 1 : 0;
        }
    }
    return {digits, exponent};
}

/// What the program and OpenSSL don't agree on of two numbers of moderate size, in words; empty if nothing.
[[nodiscard]] inline std::string disagreement(const std::string& leftText, const std::string& rightText) {
    const auto left = Decimal::parse(leftText).value();
    const auto right = Decimal::parse(rightText).value();
    for (const auto& [text, number] : {std::pair(leftText, left), std::pair(rightText, right)}) {
        const auto [digits, exponent] = digitsOf(text);
        if (number.text() != rounded(bigNumber(digits), exponent) ||
            Decimal::parse(number.text()) != number ||
            number.toDouble() != std::strtod(number.text().c_str(), nullptr)) {
            return text;
        }
    }
    // What is reckoned with is what was read: at most 38 digits.
    const auto [a, aExponent] = digitsOf(left.text());
    const auto [b, bExponent] = digitsOf(right.text());
    const int exponent = std::min(aExponent, bExponent);
    const auto bigLeft = bigNumber(a, aExponent - exponent);
    const auto bigRight = bigNumber(b, bExponent - exponent);
    const OwnedNumber result(BN_new());
    const std::unique_ptr<BN_CTX, OpenSslRelease<BN_CTX_free>> context(BN_CTX_new());
    BN_add(result.get(), bigLeft.get(), bigRight.get());
    std::string found = (left + right).text() == rounded(result, exponent) ? "" : "sum ";
    BN_sub(result.get(), bigLeft.get(), bigRight.get());
    found += (left - right).text() == rounded(result, exponent) ? "" : "difference ";
    BN_mul(result.get(), bigLeft.get(), bigRight.get(), context.get());
    found += (left * right).text() == rounded(result, 2 * exponent) ? "" : "product ";
    found += (left <=> right) == (BN_cmp(bigLeft.get(), bigRight.get()) <=> 0) ? "" : "order ";
    if (!right.isZero()) {
        constexpr int places = 400;
        const auto dividend = bigNumber(a, aExponent - exponent + places);
        BN_div(result.get(), nullptr, dividend.get(), bigRight.get(), context.get());
        found += (left / right).text() == rounded(result, -places) ? "" : "quotient ";
    }
    return found;
}

}  // namespace vantrell::testing
