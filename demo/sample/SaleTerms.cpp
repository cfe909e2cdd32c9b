#include "sample/SaleTerms.h"

#include "sample/Territories.h"

#include <array>

namespace vantrell::sample {

namespace {

constexpr std::int64_t usualShare = 70;
constexpr std::int64_t loyalShare = 85;

// By hardware: iPhone, iPad, universal, Mac.
constexpr std::array<std::string_view, 4> soldApp{"1", "1T", "1F", "F1"};
constexpr std::array<std::string_view, 4> updatedApp{"7", "7T", "7F", "F7"};
constexpr std::array<std::string_view, 4> fetchedApp{"3", "3T", "3F", "3"};

std::string_view appType(const Item& app, Action action) {
    const auto hardware = static_cast<std::size_t>(app.hardware);
    if (action == Action::update) {
        return updatedApp[hardware];
    }
    if (action == Action::redownload) {
        return fetchedApp[hardware];
    }
    return app.offer == Offer::bundle ? "1-B" : soldApp[hardware];
}

std::string_view inAppType(const Item& product, Action action) {
    const bool mac = product.hardware == Hardware::mac;
    if (action == Action::restore) {
        return "IA3";
    }
    if (product.offer == Offer::subscription) {
        return mac ? "IAY-M" : "IAY";
    }
    if (product.offer == Offer::seasonPass) {
        return mac ? "IA9-M" : "IA9";
    }
    return mac ? "IA1-M" : "IA1";
}

}  // namespace

UnitKind unitKind(const Item& item, Action action) {
    if (!item.isApp()) {
        return UnitKind::inApp;
    }
    if (action == Action::update) {
        return UnitKind::update;
    }
    return action == Action::redownload ? UnitKind::redownload : UnitKind::app;
}

std::string_view productType(const Item& item, Action action) {
    return item.isApp() ? appType(item, action) : inAppType(item, action);
}

bool isPaid(const Item& item, Action action) {
    switch (action) {
        case Action::promoCopy:
        case Action::update:
        case Action::redownload:
        case Action::restore:
            return false;
        case Action::purchase:
        case Action::refund:
        case Action::renewal:
        case Action::loyalRenewal:
        case Action::winBack:
            return !item.dollarCents.empty();
    }
    return false;
}

Money customerPrice(const Item& item, const SaleKey& key) {
    const auto& currency = currencyNamed(currencyOf(key));
    if (!isPaid(item, key.action)) {
        return {0, currency.digits};
    }
    const auto cents = item.dollarCents[key.price].value;
    return shelfPrice(currency, key.action == Action::winBack ? (cents + 1) / 2 : cents);
}

Money proceedsPerUnit(const Item& item, const SaleKey& key) {
    const auto price = customerPrice(item, key);
    const auto share = key.action == Action::loyalRenewal ? loyalShare : usualShare;
    return {price.minor * share / (100 + territories()[key.territory].taxPercent), price.digits};
}

std::string_view currencyOf(const SaleKey& key) {
    return territories()[key.territory].currency;
}

}  // namespace vantrell::sample
