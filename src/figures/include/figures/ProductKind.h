#pragma once

#include <string_view>

namespace vantrell {

/// What a line of a sales report is about.
enum class ProductKind { app, iap, update, redownload, other, last = other };

/// Tells the kind by the first letters of the report's product type, such as "1F", "IAY" or "7T", but for two
/// types of Mac apps; case and surrounding white space don't matter.
[[nodiscard]] ProductKind productKind(std::string_view productType);

/// Whether lines of this kind are sales and refunds of something, which is what money figures are made of.
[[nodiscard]] constexpr bool isSold(ProductKind kind) {
    return kind == ProductKind::app || kind == ProductKind::iap;
}

/// Whether the amounts of lines of this kind count.
[[nodiscard]] constexpr bool bringsMoney(ProductKind kind) {
    switch (kind) {
        case ProductKind::app:
        case ProductKind::iap:
        case ProductKind::other:
            return true;
        case ProductKind::update:
        case ProductKind::redownload:
            break;
    }
    return false;
}

/// True for product types of subscriptions, as they stand in the report.
[[nodiscard]] bool isSubscriptionType(std::string_view productType);

}  // namespace vantrell
