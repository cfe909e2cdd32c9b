#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantrell::sample {

/// A small, fast source of numbers (splitmix64) whose sequence is the same on every machine, which the
/// standard library's distributions don't promise.
class Random {
  public:
    explicit constexpr Random(std::uint64_t state) : state_(state) {}

    constexpr std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    /// A number from 0 to `limit` - 1; `limit` is 1 to 2^32.
    constexpr std::uint64_t below(std::uint64_t limit) { return ((next() >> 32U) * limit) >> 32U; }

  private:
    std::uint64_t state_;
};

/// Picks an index with a chance in proportion to its weight.
class WeightedChoice {
  public:
    /// At least one weight must be above 0.
    explicit WeightedChoice(std::span<const std::uint32_t> weights);

    [[nodiscard]] std::size_t pick(Random& random) const;

  private:
    std::vector<std::uint64_t> upTo_;
};

}  // namespace vantrell::sample
