#pragma once

#include "sample/Days.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell::sample {

/// What is sold, which decides how it can be bought, kept and given back.
enum class Offer : std::uint8_t {
    paidApp,
    macApp,
    freeApp,
    bundle,
    consumable,
    lasting,  ///< bought once and restored at will
    seasonPass,
    subscription,
};

enum class Hardware : std::uint8_t { iPhone, iPad, universal, mac };

/// An app or an in-app product of the account.
struct Item {
    std::int64_t appleID = 0;
    std::string_view sku = {};
    std::string_view parentSKU = {};  ///< of an in-app product: its app, which the account need not know
    Offer offer = Offer::freeApp;
    Hardware hardware = Hardware::universal;
    std::string_view category = {};
    std::string_view period = {};  ///< of a subscription
    std::vector<Since<std::string_view>> titles = {};
    std::vector<Since<std::int64_t>> dollarCents = {};  ///< price in the United States; empty if free
    Day launched = {};
    std::optional<Day> withdrawn = {};  ///< from then on nobody new can have it
    std::uint32_t popularity = 1;       ///< 1 to 100
    std::string_view home = {};         ///< the country where most of it is sold, if it is a local success

    [[nodiscard]] bool isApp() const { return offer <= Offer::bundle; }
};

[[nodiscard]] std::vector<Item> sampleApps();

/// What can be bought within `apps`, and one product whose app is none of them.
[[nodiscard]] std::vector<Item> sampleProducts(std::span<const Item> apps);

/// The apps, then the products.
[[nodiscard]] std::vector<Item> sampleCatalogue();

/// Which of a list's values holds on `day`: the last that began by then, else the first.
template <typename Value>
[[nodiscard]] std::size_t stepOn(const std::vector<Since<Value>>& steps, Day day) {
    std::size_t step = 0;
    while (step + 1 < steps.size() && steps[step + 1].day <= day) {
        ++step;
    }
    return step;
}

/// The number of an app's release that is current on `day`, counted from 0. A withdrawn app gets no more.
[[nodiscard]] std::uint16_t releaseOn(const Item& app, Day day);

/// "1.0", "1.1" … "1.9", "2.0".
[[nodiscard]] std::string releaseText(std::uint16_t release);

}  // namespace vantrell::sample
