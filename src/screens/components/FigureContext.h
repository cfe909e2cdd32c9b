#pragma once

#include "earnings/EarningsStore.h"
#include "platform/Locale.h"

namespace vantrell {

/// What figures become text with: the store's rates and display currency, and the user's conventions.
struct FigureContext {
    const EarningsStore& store;
    const Locale& locale;
};

}  // namespace vantrell
