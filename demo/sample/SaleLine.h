#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>

namespace vantrell::sample {

/// What a customer did. Tables by action are in this order.
enum class Action : std::uint8_t {
    purchase,   ///< also the first download of a free app, and the start of a subscription
    promoCopy,  ///< a copy against a promo code
    refund,     ///< units are negative
    update,
    redownload,
    restore,  ///< a lasting product fetched again
    renewal,
    loyalRenewal,  ///< after a year of subscription, at the better rate
    winBack,       ///< a former subscriber, at half the price
};

inline constexpr std::size_t actionCount = 9;

enum class Device : std::uint8_t { iPhone, iPad, desktop, television };

/// Everything that tells one line of a report from another, but for its units and dates. Indices lead into
/// the catalogue, the territories and the item's own prices and titles.
struct SaleKey {
    std::uint8_t item = 0;
    std::uint8_t territory = 0;
    Action action = Action::purchase;
    Device device = Device::iPhone;
    std::uint8_t price = 0;
    std::uint8_t title = 0;
    std::uint16_t release = 0;  ///< of an app

    auto operator<=>(const SaleKey&) const = default;
};

struct SaleLine {
    SaleKey key;
    std::int64_t units = 0;

    bool operator==(const SaleLine&) const = default;
};

}  // namespace vantrell::sample
