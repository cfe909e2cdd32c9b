#pragma once

#include "base/Instant.h"
#include "data/OfferDictionary.h"
#include "data/SalesRow.h"
#include "data/TextDictionary.h"

#include <cstdint>

namespace vantrell {

/// What every figure is worked out from: the part of a stored sales line that a reload reads.
struct SalesFigures {
    Instant beginDate;
    OfferID offer = 0;
    std::int64_t units = 0;
    TextID country = 0;
};

/// A sales line as it is stored: a parsed one with its offer and its texts as numbers of the dictionaries.
struct SalesLine : SalesFigures {
    using Figures = SalesFigures;

    Instant endDate;
    TextID version = 0;
    TextID promoCode = 0;
    TextID subscription = 0;
    TextID period = 0;
    TextID device = 0;
    TextID platforms = 0;
    TextID proceedsReason = 0;
    TextID client = 0;
    TextID orderType = 0;
};

}  // namespace vantrell
