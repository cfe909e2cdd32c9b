#include "Require.h"
#include "Targets.h"
#include "testing/BigDecimal.h"

#include <memory>
#include <optional>
#include <utility>

// Two numbers with a space between them, held against OpenSSL's integers of any length.

namespace vantrell::fuzz {
namespace {

using testing::bigNumber;
using testing::rounded;

/// Digits and power of ten of a text that is a number, read in the plainest way.
std::pair<std::string, int> parts(std::string_view text) {
    std::string digits(text.starts_with('-') ? "-" : "");
    const std::size_t mark = text.find_first_of("eE");
    const std::string_view mantissa = text.substr(0, mark);
    int exponent = mark == std::string_view::npos ? 0 : std::stoi(std::string(text.substr(mark + 1)));
    bool isFraction = false;
    for (const char letter : mantissa) {
        isFraction = isFraction || letter == '.';
        if (letter >= '0' && letter <= '9') {
            digits += letter;
            exponent -= isFraction ? 1 : 0;
        }
    }
    return {digits, exponent};
}

/// The same digits, cut off where numbers of that size would only cost time.
bool isSmall(std::string_view text) {
    const std::size_t mark = text.find_first_of("eE");
    return text.size() < 80 && (mark == std::string_view::npos || text.size() - mark <= 3);
}

}  // namespace

void decimal(const std::string& input) {
    const std::size_t space = std::min(input.find(' '), input.size());
    const std::string texts[] = {input.substr(0, space), input.substr(std::min(space + 1, input.size()))};
    const auto left = Decimal::parse(texts[0]);
    const auto right = Decimal::parse(texts[1]);
    if (!left || !right) {
        return;
    }
    require(Decimal::parse(left->text()) == left);
    if (!isSmall(texts[0]) || !isSmall(texts[1])) {
        static_cast<void>((*left + *right).text() + (*left * *right).text());
        return;
    }
    // What is added is what was read: at most 38 digits.
    const auto [leftDigits, leftExponent] = parts(texts[0]);
    const auto [rightDigits, rightExponent] = parts(texts[1]);
    require(left->text() == rounded(bigNumber(leftDigits), leftExponent));
    require(right->text() == rounded(bigNumber(rightDigits), rightExponent));
    const auto [a, aExponent] = parts(left->text());
    const auto [b, bExponent] = parts(right->text());
    const int exponent = std::min(aExponent, bExponent);
    const auto bigLeft = bigNumber(a, aExponent - exponent);
    const auto bigRight = bigNumber(b, bExponent - exponent);
    const OwnedNumber result(BN_new());
    BN_add(result.get(), bigLeft.get(), bigRight.get());
    require((*left + *right).text() == rounded(result, exponent));
    BN_sub(result.get(), bigLeft.get(), bigRight.get());
    require((*left - *right).text() == rounded(result, exponent));
    const std::unique_ptr<BN_CTX, OpenSslRelease<BN_CTX_free>> context(BN_CTX_new());
    BN_mul(result.get(), bigLeft.get(), bigRight.get(), context.get());
    require((*left * *right).text() == rounded(result, 2 * exponent));
    require((*left <=> *right) == (BN_cmp(bigLeft.get(), bigRight.get()) <=> 0));
}

}  // namespace vantrell::fuzz
