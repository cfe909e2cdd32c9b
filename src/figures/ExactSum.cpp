#include "figures/ExactSum.h"

namespace vantrell {

ScaledPrice::ScaledPrice(const Decimal& price) : price_(price), scaled_(unscaled) {
    const auto parts = price.parts();
    if (!parts || parts->exponent < -places) {
        return;
    }
    std::int64_t scaled = parts->coefficient;
    for (int exponent = parts->exponent; exponent > -places; --exponent) {
        if (__builtin_mul_overflow(scaled, std::int64_t{10}, &scaled)) {
            return;
        }
    }
    scaled_ = scaled;
}

void ExactSum::addRest(std::int64_t units, const ScaledPrice& price) {
    rest_ += Decimal(units) * price.value();
}

Decimal ExactSum::total() const {
    // Two halves that each fit in 64 bits, or three for sums that no account has.
    constexpr std::int64_t step = 1'000'000'000'000'000'000;
    constexpr int stepPlaces = 18;
    Decimal sum = rest_;
    Wide left = scaled_;
    for (int exponent = -ScaledPrice::places; left != 0; exponent += stepPlaces) {
        sum += Decimal::scaled(static_cast<std::int64_t>(left % step), exponent);
        left /= step;
    }
    return sum;
}

long double ExactSum::approximateTotal() const {
    const long double total = static_cast<long double>(scaled_) / ScaledPrice::scale;
    return rest_.isZero() ? total : total + rest_.toLongDouble();
}

}  // namespace vantrell
