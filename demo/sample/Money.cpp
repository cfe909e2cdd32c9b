#include "sample/Money.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace vantrell::sample {

void appendMoney(std::string& out, Money amount, LeadingZero zero) {
    if (amount.minor == 0) {
        out += "0.00";
        return;
    }
    if (amount.minor < 0) {
        out += '-';
    }
    std::array<char, 24> text{};
    const auto magnitude = amount.minor < 0 ? -amount.minor : amount.minor;
    const auto* const end = std::to_chars(text.begin(), text.end(), magnitude).ptr;
    const std::string_view digits{text.data(), static_cast<std::size_t>(end - text.data())};
    const auto fraction = static_cast<std::size_t>(amount.digits);

    if (fraction == 0) {
        out += digits;
    } else if (digits.size() > fraction) {
        out.append(digits, 0, digits.size() - fraction)
            .append(1, '.')
            .append(digits, digits.size() - fraction);
    } else {
        out.append(zero == LeadingZero::written ? "0." : ".");
        out.append(fraction - digits.size(), '0').append(digits);
    }
}

}  // namespace vantrell::sample
