#pragma once

#include "platform/Decimal.h"
#include "platform/OpenSslOwners.h"

#include <cstddef>
#include <string>

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

}  // namespace vantrell::testing
