#pragma once

#include "sample/SaleLine.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantrell::sample {

/// Adds up units by key: how a day's orders become its lines, and days a month or a year.
class SaleTally {
  public:
    SaleTally();

    void add(const SaleLine& line);

    /// How many different keys there are so far.
    [[nodiscard]] std::size_t size() const { return size_; }

    /// In the order of their keys.
    [[nodiscard]] std::vector<SaleLine> lines() const;

  private:
    struct Slot {
        std::uint64_t packedKey;
        std::int64_t units;
    };

    void grow();
    [[nodiscard]] Slot& slotOf(std::uint64_t packedKey);

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
};

}  // namespace vantrell::sample
