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
    if (upper(0) == 'I' && upper(1) == 'A') {
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
