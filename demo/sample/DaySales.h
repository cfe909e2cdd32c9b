#pragma once

#include "sample/Catalogue.h"
#include "sample/Random.h"
#include "sample/SaleLine.h"
#include "sample/SaleTally.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vantrell::sample {

/// Draws what customers did on one day. The outcome depends on the catalogue, the seed, the size and the day
/// alone; no day knows of another.
class DaySales {
  public:
    /// `items` must outlive the object. `ordersPerDay` is what an ordinary day has once the account has
    /// grown.
    DaySales(std::span<const Item> items, std::uint64_t seed, std::uint32_t ordersPerDay);

    /// Adds the day's orders to `tally`, which may hold other days already.
    void drawInto(SaleTally& tally, Day day) const;

  private:
    [[nodiscard]] std::uint64_t orderCount(Day day, Random& random) const;
    [[nodiscard]] SaleLine draw(std::size_t item, Day day, Random& random) const;
    [[nodiscard]] std::size_t drawTerritory(const Item& item, Random& random) const;
    [[nodiscard]] std::int64_t drawUnits(const SaleKey& key, Day day, Random& random) const;

    std::span<const Item> items_;
    std::uint64_t seed_;
    std::uint32_t ordersPerDay_;
    WeightedChoice territory_;
    std::vector<WeightedChoice> actionByOffer_;
    std::vector<WeightedChoice> deviceByHardware_;
};

}  // namespace vantrell::sample
