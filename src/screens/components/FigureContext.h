#pragma once

#include "figures/EarningsStore.h"
#include "locale/Locale.h"

namespace vantrell {

/// What figures become text with: the store's rates and display currency, and the user's conventions.
struct FigureContext {
    const EarningsStore& store;
    const Locale& locale;
};

}  // namespace vantrell
