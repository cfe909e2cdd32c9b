#pragma once

#include <cstdint>
#include <string>

namespace vantrell::sample {

/// An exact amount in the smallest unit of its currency, of which `digits` stand after the point.
///
/// Deliberately not the program's own decimal: the account's totals are there to check that one.
struct Money {
    std::int64_t minor = 0;
    int digits = 2;

    bool operator==(const Money&) const = default;
};

/// How an amount between -1 and 1 is written. Reports do both.
enum class LeadingZero { written, dropped };

/// Appends "-4.99", "1200" (no digits), and "0.70" or ".70". Zero is "0.00" in every currency.
void appendMoney(std::string& out, Money amount, LeadingZero zero);

}  // namespace vantrell::sample
