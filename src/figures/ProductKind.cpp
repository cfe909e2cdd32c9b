#include "figures/ProductKind.h"

#include "base/Whitespace.h"

namespace vantrell {

ProductKind productKind(std::string_view productType) {
    const std::string_view text = trimWhitespaceAndNewlines(productType);
    if (text.empty()) {
        return ProductKind::other;
    }
    const auto upper = [&text](std::size_t index) {
        const char letter = index < text.size() ? text[index] : '\0';
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    };
    // Two types of Mac apps are not what they begin with.
    if (upper(0) == 'F' && upper(1) == '7' && text.size() == 2) {
        return ProductKind::update;
    }
    const bool isInMacApp = upper(0) == 'F' && upper(1) == 'I' && upper(2) == '1' && text.size() == 3;
    if (isInMacApp || (upper(0) == 'I' && upper(1) == 'A')) {
        return ProductKind::iap;
    }
    switch (upper(0)) {
        case '7':
            return ProductKind::update;
        case '3':
            return ProductKind::redownload;
        case '1':
        case 'F':
            return ProductKind::app;
        default:
            return ProductKind::other;
    }
}

bool isSubscriptionType(std::string_view productType) {
    return productType.starts_with("IA9") || productType.starts_with("IAY") || productType.starts_with("IAC");
}

}  // namespace vantrell
