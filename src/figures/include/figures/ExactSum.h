#pragma once

#include "base/Decimal.h"

#include <cstdint>
#include <limits>

namespace vantrell {

/// A price that is multiplied and summed often: as a whole number of millionths where it is one, which is
/// nearly always, and as a Decimal otherwise. The results are the same digits either way.
class ScaledPrice {
  public:
    ScaledPrice() = default;
    explicit ScaledPrice(const Decimal& price);

    [[nodiscard]] bool isZero() const { return price_.isZero(); }
    [[nodiscard]] const Decimal& value() const { return price_; }

  private:
    friend class ExactSum;
    static constexpr int places = 6;
    static constexpr std::int64_t scale = 1'000'000;
    static constexpr std::int64_t unscaled = std::numeric_limits<std::int64_t>::min();

    Decimal price_;
    std::int64_t scaled_ = 0;
};

/// An exact sum of units times prices. Counts what was added, so that "nothing" and "zero" can be told apart.
class ExactSum {
  public:
    /// An amount of zero leaves no trace.
    void add(std::int64_t units, const ScaledPrice& price) {
        // Whether there is an amount can't be guessed from line to line, so it is worked out without
        // branches.
        touched_ = static_cast<bool>(touched_ | ((units != 0) & (price.scaled_ != 0)));
        if (price.scaled_ == ScaledPrice::unscaled || units != static_cast<std::int32_t>(units))
            [[unlikely]] {
            addRest(units, price);
        } else {
            scaled_ += static_cast<Wide>(units) * price.scaled_;
        }
    }

    void add(const ExactSum& other) {
        scaled_ += other.scaled_;
        rest_ += other.rest_;
        touched_ = touched_ || other.touched_;
    }

    [[nodiscard]] bool isTouched() const { return touched_; }
    [[nodiscard]] Decimal total() const;
    /// The same, to be converted for a chart.
    [[nodiscard]] long double approximateTotal() const;

  private:
    void addRest(std::int64_t units, const ScaledPrice& price);

    // 2^31 units times 2^63 millionths leave room for 2^33 lines.
    __extension__ using Wide = __int128;
    Wide scaled_ = 0;
    Decimal rest_;
    bool touched_ = false;
};

}  // namespace vantrell
