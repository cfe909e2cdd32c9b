#pragma once

#include "base/Instant.h"
#include "data/RatesText.h"

#include <string>

namespace vantrell {

/// The stored exchange rates: units of each currency for one `base`.
struct RateSet {
    std::string base = "USD";
    Instant fetchedAt = distantPast;
    Rates rates;

    bool operator==(const RateSet&) const = default;
};

}  // namespace vantrell
