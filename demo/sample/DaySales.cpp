#include "sample/DaySales.h"

#include "sample/Rhythm.h"
#include "sample/SaleTerms.h"
#include "sample/Territories.h"

#include <array>

namespace vantrell::sample {

namespace {

// How often each action comes up, in the order of Action, for each Offer.
constexpr std::array<std::array<std::uint32_t, actionCount>, 8> actionWeights{{
    {40, 1, 2, 36, 21, 0, 0, 0, 0},  // paid app
    {50, 1, 2, 47, 0, 0, 0, 0, 0},   // Mac app: fetching it again is not reported
    {44, 0, 0, 34, 22, 0, 0, 0, 0},  // free app
    {97, 0, 3, 0, 0, 0, 0, 0, 0},    // bundle
    {97, 0, 3, 0, 0, 0, 0, 0, 0},    // consumable
    {70, 0, 3, 0, 0, 27, 0, 0, 0},   // lasting
    {96, 0, 4, 0, 0, 0, 0, 0, 0},    // season pass
    {30, 0, 3, 0, 0, 0, 43, 21, 3},  // subscription
}};

// How often each device comes up, in the order of Device, for each Hardware.
constexpr std::array<std::array<std::uint32_t, 4>, 4> deviceWeights{{
    {100, 0, 0, 0},
    {0, 100, 0, 0},
    {68, 26, 2, 4},
    {0, 0, 100, 0},
}};

// The most units that a line of a wholly popular item in the largest country can have, in the order of
// Action.
constexpr std::array<std::uint64_t, actionCount> busiestLine{40, 3, 1, 160, 70, 12, 25, 15, 3};
constexpr std::uint64_t mostPopular = 100;
constexpr std::uint64_t largestCountry = 300;

// Small countries turn up on a line more often than their sales alone would have it: a report has one line
// for a single copy as for a hundred.
std::vector<std::uint32_t> presence() {
    std::vector<std::uint32_t> weights;
    for (const auto& territory : territories()) {
        std::uint32_t root = 1;
        while (root * root < 9 * territory.weight) {
            ++root;
        }
        weights.push_back(root);
    }
    return weights;
}

template <typename Table>
std::vector<WeightedChoice> choices(const Table& table) {
    return {table.begin(), table.end()};
}

std::uint32_t demand(const Item& item, Day day) {
    constexpr std::chrono::days launchWeeks{21};
    if (day < item.launched) {
        return 0;
    }
    if (item.withdrawn && day > *item.withdrawn) {
        return (item.popularity + 4) / 5;
    }
    return day < item.launched + launchWeeks ? item.popularity * 3 : item.popularity;
}

// Of a withdrawn item only those who own it already are heard of.
Action afterWithdrawal(const Item& item, Action drawn) {
    if (!item.isApp()) {
        return Action::restore;
    }
    return drawn == Action::update ? Action::update : Action::redownload;
}

// Nobody can have been a subscriber for longer than there was something to subscribe to.
Action inFirstYear(const Item& item, Action drawn) {
    const bool renews = drawn == Action::renewal || drawn == Action::loyalRenewal;
    if (!renews) {
        return drawn;
    }
    return item.period == "1 Year" ? Action::purchase : Action::renewal;
}

Action possibleOn(Day day, const Item& item, Action drawn) {
    if (item.withdrawn && day > *item.withdrawn) {
        return afterWithdrawal(item, drawn);
    }
    return day < item.launched + std::chrono::days{365} ? inFirstYear(item, drawn) : drawn;
}

}  // namespace

DaySales::DaySales(std::span<const Item> items, std::uint64_t seed, std::uint32_t ordersPerDay)
    : items_(items),
      seed_(seed),
      ordersPerDay_(ordersPerDay),
      territory_(presence()),
      actionByOffer_(choices(actionWeights)),
      deviceByHardware_(choices(deviceWeights)) {}

void DaySales::drawInto(SaleTally& tally, Day day) const {
    if (isQuiet(seed_, day)) {
        return;
    }
    std::vector<std::uint32_t> weights;
    weights.reserve(items_.size());
    for (const auto& item : items_) {
        weights.push_back(demand(item, day));
    }
    const WeightedChoice choice{weights};
    Random random{seed_ ^ static_cast<std::uint64_t>(day.time_since_epoch().count()) * 0xD1342543DE82EF95U};
    for (auto orders = orderCount(day, random); orders > 0; --orders) {
        tally.add(draw(choice.pick(random), day, random));
    }
}

std::uint64_t DaySales::orderCount(Day day, Random& random) const {
    const auto chance = 880 + random.below(240);
    const auto size = ordersPerDay_ * grownTo(day) / 1000;
    return 1 + size * busyness(day) / 1000 * chance / 1000;
}

SaleLine DaySales::draw(std::size_t item, Day day, Random& random) const {
    const auto& sold = items_[item];
    SaleKey key;
    key.item = static_cast<std::uint8_t>(item);
    key.territory = static_cast<std::uint8_t>(drawTerritory(sold, random));
    const auto& actions = actionByOffer_[static_cast<std::size_t>(sold.offer)];
    key.action = possibleOn(day, sold, static_cast<Action>(actions.pick(random)));
    key.device = static_cast<Device>(deviceByHardware_[static_cast<std::size_t>(sold.hardware)].pick(random));
    if (isPaid(sold, key.action)) {
        key.price = static_cast<std::uint8_t>(stepOn(sold.dollarCents, day));
    }
    key.title = static_cast<std::uint8_t>(stepOn(sold.titles, day));
    key.release = sold.isApp() ? releaseOn(sold, day) : std::uint16_t{0};
    return {key, drawUnits(key, day, random)};
}

std::size_t DaySales::drawTerritory(const Item& item, Random& random) const {
    constexpr std::uint64_t percentAtHome = 60;
    if (!item.home.empty() && random.below(100) < percentAtHome) {
        return territoryIndex(item.home);
    }
    return territory_.pick(random);
}

std::int64_t DaySales::drawUnits(const SaleKey& key, Day day, Random& random) const {
    const auto& item = items_[key.item];
    const auto busiest = busiestLine[static_cast<std::size_t>(key.action)] * grownTo(day) / 1000;
    const auto most =
        busiest * item.popularity * territories()[key.territory].weight / mostPopular / largestCountry;
    const auto units = static_cast<std::int64_t>(1 + random.below(most + 1));
    return key.action == Action::refund ? -units : units;
}

}  // namespace vantrell::sample
