#include "Targets.h"
#include "testing/BigDecimal.h"

// Two numbers with a space between them, held against OpenSSL's integers of any length.

namespace vantrell::fuzz {
namespace {

/// Numbers of another size would only cost time.
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
    if (isSmall(texts[0]) && isSmall(texts[1])) {
        require(testing::disagreement(texts[0], texts[1]).empty());
    } else {
        require(Decimal::parse(left->text()) == left);
        static_cast<void>((*left + *right).text() + (*left * *right).text());
    }
}

}  // namespace vantrell::fuzz
