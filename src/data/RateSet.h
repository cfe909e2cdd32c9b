#pragma once

#include "platform/Instant.h"

#include <map>
#include <string>

namespace vantrell {

/// The stored exchange rates: units of each currency for one `base`.
struct RateSet {
    std::string base = "USD";
    Instant fetchedAt = distantPast;
    std::map<std::string, double, std::less<>> rates;

    bool operator==(const RateSet&) const = default;
};

}  // namespace vantrell
